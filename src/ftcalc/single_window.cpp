#include "ftcalc/single_window.h"

#include <QLocalSocket>
#include <memory>

namespace pitchcraft {

bool SingleWindow::RaiseRunning() const {
  constexpr int kPatience = 1000;  // milliseconds: a program that hangs must not keep another from starting
  QLocalSocket socket;
  socket.connectToServer(name_, QIODevice::ReadOnly);
  return socket.waitForConnected(kPatience) && socket.waitForReadyRead(kPatience);
}

void SingleWindow::Listen() {
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  connect(&server_, &QLocalServer::newConnection, this, [this] {
    while (const std::unique_ptr<QLocalSocket> socket{server_.nextPendingConnection()}) {
      socket->write("here");
      socket->waitForBytesWritten();
      socket->disconnectFromServer();
    }
    emit Asked();
  });
  // A crashed program may have left a socket behind that would be in the way.
  QLocalServer::removeServer(name_);
  server_.listen(name_);
}

}  // namespace pitchcraft
