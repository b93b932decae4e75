#include "platform/webengine/SharedContext.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QOpenGLContext>
#include <QSurfaceFormat>

QT_BEGIN_NAMESPACE
// Exported by the toolkit for modules that make the context themselves; no header of it says so.
// NOLINTNEXTLINE(readability-identifier-naming)
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
QT_END_NAMESPACE

namespace webengine {
namespace {

/// The toolkit from 6.5 on warns of an attribute that comes after the application object. What it is late for
/// is the making of the context, which is done.
void SetAttributeOfContext() {
    QLoggingCategory* const messages = QLoggingCategory::defaultCategory();
    const bool warns = messages->isWarningEnabled();
    messages->setEnabled(QtWarningMsg, false);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    messages->setEnabled(QtWarningMsg, warns);
}

void RemoveSharedContext() {
    delete QOpenGLContext::globalShareContext();
    qt_gl_set_global_share_context(nullptr);
}

}  // namespace

// One that could not be made is left in its place: the engine asks whether it is good, and draws without the
// graphics card where it is not.
void MakeSharedContext() {
    if (QOpenGLContext::globalShareContext() != nullptr) return;
    auto* const context = new QOpenGLContext;
    context->setFormat(QSurfaceFormat::defaultFormat());
    context->create();
    qt_gl_set_global_share_context(context);
    // The last routine that is added is the first to run, and the engine adds its own later.
    qAddPostRoutine(&RemoveSharedContext);
    // Widgets of the toolkit ask for the attribute, not for the context.
    SetAttributeOfContext();
}

}  // namespace webengine
