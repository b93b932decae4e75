#include "platform/webengine/UserInput.h"

#include <QChildEvent>
#include <QColorDialog>
#include <QKeyEvent>

namespace webengine {

namespace {

bool Writes(const QKeyEvent& press) {
    return !press.text().isEmpty() && press.text().front().isPrint() &&
           (press.modifiers() & Qt::ControlModifier) == 0;
}

}  // namespace

UserInput::UserInput(QWidget& view) : QObject(&view) {
    view.installEventFilter(this);
}

void UserInput::WatchChild(QObject* child) {
    if (child->isWidgetType()) child->installEventFilter(this);
}

bool UserInput::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::ChildAdded:
            WatchChild(static_cast<QChildEvent*>(event)->child());
            break;
        case QEvent::ChildPolished:
            // Sent by the dialog on its way to the screen.
            if (auto* chooser = qobject_cast<QColorDialog*>(static_cast<QChildEvent*>(event)->child());
                chooser != nullptr && chooser_coming) {
                chooser_coming(*chooser);
            }
            break;
        case QEvent::KeyPress:
            // Whoever wants to be left alone does not ask for more.
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) break;
            if (Writes(static_cast<QKeyEvent&>(*event)) && wrote) wrote();
            [[fallthrough]];
        case QEvent::MouseButtonPress:
        case QEvent::TouchBegin:
            if (pressed) pressed();
            break;
        case QEvent::Drop:
            if (wrote) wrote();
            if (pressed) pressed();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace webengine
