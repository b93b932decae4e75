// A bare window of the toolkit in one colour: what a start costs before the program does anything.
#include <QApplication>
#include <QPainter>
#include <QWidget>

namespace {

class Amber final : public QWidget {
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(rect(), QColor(0xe9, 0xa2, 0x4b));
    }
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Amber window;
    window.resize(400, 300);
    window.show();
    return QApplication::exec();
}
