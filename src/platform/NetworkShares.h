#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

namespace renvale::platform {

// One connected network folder: where its files can be reached on this
// machine and the address it came from.
struct NetworkMount {
  QByteArray localFolder;  // with a trailing '/'; empty when the share has none
  QString address;         // "smb://nas/photos/", or a kernel mount's source ("//nas/photos")
  bool kernelMount = false;  // mounted by the system (cifs, nfs, sshfs), not through the desktop
  bool operator==(const NetworkMount& other) const = default;
};

// What a server asks before it lets the person in.
struct LoginRequest {
  QString message;  // the server's own words, naming the share
  QString user;     // proposed values
  QString domain;
  bool needsUser = false;
  bool needsDomain = false;
  bool needsPassword = false;
  bool anonymousAllowed = false;
};

struct LoginAnswer {
  QString user;
  QString domain;
  QString password;
  bool anonymous = false;
};

// Asked on the caller's thread while a connection waits; false when the
// person declines, which ends the attempt without an error message.
using AskLogin = std::function<bool(const LoginRequest&, LoginAnswer*)>;
// A server's question (an unknown host key, say): the index of the chosen
// answer, or -1 to give up.
using AskChoice = std::function<int(const QString& question, const std::vector<QString>& choices)>;

struct MapResult {
  int error = 0;  // an error number from ErrorNumbers.h
  bool declined = false;  // the person cancelled a login, a question or the whole attempt
  QByteArray localFolder;  // with a trailing '/'
};

// Connecting and disconnecting network folders. The dialogs see only this,
// so that they can be tried without a network.
class NetworkShares {
 public:
  virtual ~NetworkShares() = default;
  // Connects the folder at `uri` (as NetworkAddress gives it) and returns the
  // local folder through which its files are reached. Blocks until done,
  // while the desktop's events keep being handled.
  virtual MapResult Map(const QByteArray& uri, const AskLogin& askLogin, const AskChoice& askChoice) = 0;
  // Called while Map waits (from an event it handles): Map gives up and
  // returns as declined.
  virtual void CancelMap() = 0;
  // The connected network folders, those of the desktop first.
  virtual std::vector<NetworkMount> List() = 0;
  // Returns an error number; a system mount the person may not undo gives one.
  virtual int Disconnect(const NetworkMount& mount) = 0;
};

}  // namespace renvale::platform
