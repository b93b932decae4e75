#include "desktop/MainWindow.h"
namespace desktop {
void MainWindow::BuildMediaDialog() {
    desk_.rooms.add_media.emplace();
    desk_.rooms.opened.emplace();
}
}  // namespace desktop
