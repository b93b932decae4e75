// The border between the program and the page engine.
//
// The engine is big: linking it costs the start of the program a tenth of a second and more. So it lives in a
// module of its own, "brindlepost_pages.so", which is loaded when a page is wanted or likely, and so is
// OpenGL, which the windows themselves do not draw with.
#pragma once

#include <memory>
#include <string>

#include "platform/qt/PageFactory.h"
#include "platform/webengine/PageSettings.h"

namespace webengine {

/// Why no page can be shown here, in words for the user; empty when pages can be shown. The engine ends the
/// whole process where its sandbox cannot work (as root, or where the system forbids user namespaces), so
/// this asks first.
std::string WhyNoPages();
/// The same for a process of which that much is known.
std::string WhyNoPages(bool is_root, bool has_user_namespaces);

/// Makes what the engine will draw with, which is the longest step of LoadPages that needs no engine. Nothing
/// where no page can be shown.
void PreparePages();

/// Loads the module that lies in `folder`. Before that it puts the program's own engine flags in the place of
/// whatever the environment holds, so that it cannot open a debugging port, start programs or switch the
/// sandbox off with them. Never null: when pages cannot be shown, the factory makes notices that say why.
std::unique_ptr<qt::PageFactory> LoadPages(const std::string& folder, const PageSettings& settings);

/// Name, version and patch level of the engine whose module lies in `folder`, as "Qt WebEngine 6.4.2,
/// Chromium
/// ..., security patches up to ...". Loads the module and begins nothing; empty without one.
std::string EngineVersion(const std::string& folder);

}  // namespace webengine
