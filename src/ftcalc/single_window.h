// One window of a kind for each user: a second start brings the first one to the front.
#pragma once

#include <QLocalServer>
#include <QString>

namespace pitchcraft {

class SingleWindow : public QObject {
  Q_OBJECT

 public:
  explicit SingleWindow(const QString& name) : name_(name) {}

  /// Asks the running one to come to the front. False where none is running.
  bool RaiseRunning() const;
  /// Listens for those who start later.
  void Listen();

 signals:
  void Asked();

 private:
  QString name_;
  QLocalServer server_;
};

}  // namespace pitchcraft
