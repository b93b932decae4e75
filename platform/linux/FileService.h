// The file process's end: answers questions about files until the program closes the socket.
#pragma once

namespace linux {

void ServeFiles(int socket);

}  // namespace linux
