// The OpenGL context that everything the page engine draws with shares.
#pragma once

namespace webengine {

/// Makes it where there is none, as Qt::AA_ShareOpenGLContexts has it made with the application object. To be
/// called after that, before the engine is loaded, on the thread of the windows. It goes with the application
/// object, after the engine.
void MakeSharedContext();

}  // namespace webengine
