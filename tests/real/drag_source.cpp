// Another program to drag from: drag_source FILE... or drag_source --text TEXT. Its window is one large thing
// to drag; what comes of each drag is printed: "taken" or "refused".
#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <cstdio>
#include <utility>

namespace {

class DragSource final : public QLabel {
public:
    explicit DragSource(QStringList words) : words_(std::move(words)) {
        setText("drag me");
        setAlignment(Qt::AlignCenter);
        setWindowTitle("Drag source");
        resize(160, 90);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override { pressed_at_ = event->pos(); }

    void mouseMoveEvent(QMouseEvent* event) override {
        if ((event->pos() - pressed_at_).manhattanLength() < QApplication::startDragDistance()) return;
        auto* drag = new QDrag(this);
        drag->setMimeData(Carried());
        const Qt::DropAction action = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
        // The other side may still be reading; the drag goes once it has finished.
        connect(drag, &QObject::destroyed, this, [action] {
            std::puts(action == Qt::IgnoreAction ? "refused" : "taken");
            std::fflush(stdout);
        });
    }

private:
    QMimeData* Carried() const {
        auto* carried = new QMimeData;
        if (words_.value(0) == "--text") {
            carried->setText(words_.value(1));
            return carried;
        }
        QList<QUrl> urls;
        for (const QString& word : words_)
            urls.append(QUrl::fromLocalFile(word));
        carried->setUrls(urls);
        return carried;
    }

    QStringList words_;
    QPoint pressed_at_;
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    DragSource window(QApplication::arguments().mid(1));
    window.show();
    return QApplication::exec();
}
