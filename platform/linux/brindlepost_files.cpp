// The program's file process: asks a share for its files, so that a share that hangs holds nobody else up.
// The program starts it with the socket of its questions as descriptor 3.
#include "platform/linux/FileProcess.h"
#include "platform/linux/FileService.h"

int main() {
    linux::ServeFiles(linux::FileProcess::kSocket);
    return 0;
}
