// The about box: its texts, its two pages, and the tool that describes the computer.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "controls/Menu.h"
#include "ports/Dialogs.h"
#include "ports/Files.h"
#include "ports/PageEngine.h"
#include "ports/Programs.h"
#include "ports/Registry.h"
#include "roles/MakerPages.h"
#include "window/AboutForm.h"
#include "window/WindowMenu.h"

namespace window {

struct AboutPorts {
    ports::PageEngine& pages;
    ports::Registry& registry;
    ports::Programs& programs;
    const ports::Files& files;
    ports::Dialogs& dialogs;
};

class AboutRoom final {
public:
    AboutRoom(AboutForm& form, AboutMenu& menu, roles::MakerPages& maker, AboutPorts ports);

    /// Starts the tool that describes the computer: the one that the registry names, by its path or by its
    /// folder, or the desktop's own. Where none can be started the user is told so.
    void StartSysInfo();
    /// Reads a value of the registry as text: a text up to its end mark, a number as "&h" and its bytes in
    /// hexadecimal, the highest first. False, and `KeyVal` is empty, when the key or the value is missing.
    bool GetKeyValue(ports::RegistryRoot KeyRoot, std::string_view KeyName, std::string_view SubKeyRef,
                     std::string& KeyVal);

private:
    void mnuAbout_Click();
    void Form_Load();
    void cmdOK_Click();

    std::string SysInfoPath();

    AboutForm& form_;
    AboutPorts ports_;
    controls::EventClaims claims_;
};

}  // namespace window
