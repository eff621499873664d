#include "practice/terminal/Server.h"

namespace practice::terminal {

Server::Server()
    : library_({host_, platform_, profiles_, userValues_, boxes_}, {.sessionRunning = false}),
      desk_(host_),
      exporter_(types_, life_),
      offered_(library_, desk_, exporter_),
      classes_(offered_, exporter_) {}

Server::~Server() {
  exporter_.onChange = nullptr;
  exporter_.DisconnectAll();
}

}  // namespace practice::terminal
