// One window of a kind per user: a second start brings the first window to the front.
#pragma once

#include <QLocalServer>
#include <QString>

namespace pitchcraft {

class SingleWindow : public QObject {
  Q_OBJECT

 public:
  explicit SingleWindow(const QString& name) : name_(name) {}

  /// Asks the running program to come to the front. False if none is running.
  bool RaiseRunning() const;
  /// Listens for programs that start later.
  void Listen();

 signals:
  void Asked();

 private:
  QString name_;
  QLocalServer server_;
};

}  // namespace pitchcraft
