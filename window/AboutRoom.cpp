#include "window/AboutRoom.h"

#include "base/Number.h"
#include "window/Version.h"

namespace window {
namespace {

constexpr std::string_view kTitle = "Brindlepost";
constexpr std::string_view kDisclaimer =
    "Warning: This product is not protected by international copyright laws, this product can be "
    "re-distributed at users consent.";

constexpr std::string_view kToolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr std::string_view kToolValue = "PATH";
constexpr std::string_view kFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";
constexpr std::string_view kFolderValue = "MSINFO";
constexpr std::string_view kToolInFolder = "\\MSINFO32.EXE";

std::string VersionText() {
    return "Version " + base::ToText(kMajorVersion) + "." + base::ToText(kMinorVersion) + "." +
           base::ToText(kRevision);
}

std::string UpToEndMark(std::string_view bytes) {
    return std::string(bytes.substr(0, bytes.find('\0')));
}

std::string InHexadecimal(std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text = "&h";
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        const auto value = static_cast<unsigned char>(*byte);
        text += {kDigits[value / 16], kDigits[value % 16]};
    }
    return text;
}

}  // namespace

AboutRoom::AboutRoom(AboutForm& form, AboutMenu& menu, roles::MakerPages& maker, AboutPorts ports)
    : form_(form), ports_(ports) {
    claims_.Claim(menu.mnuAbout.Click, [this] { mnuAbout_Click(); });
    claims_.Claim(form_.frmAbout.Load, [this] { Form_Load(); });
    claims_.Claim(form_.cmdLarkmoorHome.Click, [&maker] { maker.OpenMakerHome(); });
    claims_.Claim(form_.cmdUpdates.Click, [&maker] { maker.OpenUpdates(); });
    claims_.Claim(form_.cmdSysInfo.Click, [this] { StartSysInfo(); });
    claims_.Claim(form_.cmdOK.Click, [this] { cmdOK_Click(); });
}

void AboutRoom::mnuAbout_Click() {
    form_.frmAbout.Show();
    form_.frmAbout.BringToFront();
    form_.cmdOK.SetFocus();
}

void AboutRoom::Form_Load() {
    form_.frmAbout.SetCaption(std::string("About ").append(kTitle));
    form_.lblVersion.SetCaption(VersionText());
    form_.lblTitle.SetCaption(kTitle);
    form_.lblDisclaimer.SetCaption(kDisclaimer);
    const std::string engine = ports_.pages.Version();
    form_.lblEngine.SetCaption(engine.empty() ? "Not installed: web pages cannot be shown." : engine);
    form_.lblStores.SetCaption(ports_.files.DisplayPath(ports_.files.ApplicationFolder()));
}

void AboutRoom::cmdOK_Click() {
    form_.frmAbout.UnloadWindow();
}

void AboutRoom::StartSysInfo() {
    const std::string path = SysInfoPath();
    if (!path.empty() && ports_.programs.Start(path)) return;
    ports_.dialogs.MsgBox("System Information Is Unavailable At This Time");
}

std::string AboutRoom::SysInfoPath() {
    std::string path;
    if (GetKeyValue(ports::RegistryRoot::LocalMachine, kToolKey, kToolValue, path)) return path;
    if (GetKeyValue(ports::RegistryRoot::LocalMachine, kFolderKey, kFolderValue, path)) {
        path += kToolInFolder;
        return ports_.files.FileExists(path) ? path : std::string();
    }
    return ports_.programs.SystemInformationTool();
}

bool AboutRoom::GetKeyValue(ports::RegistryRoot KeyRoot, std::string_view KeyName, std::string_view SubKeyRef,
                            std::string& KeyVal) {
    KeyVal.clear();
    const ports::RegistryKey key = ports_.registry.OpenKey(KeyRoot, KeyName);
    if (key == 0) return false;
    const auto value = ports_.registry.QueryValue(key, SubKeyRef);
    ports_.registry.CloseKey(key);
    if (!value) return false;
    KeyVal =
        value->type == ports::RegistryType::Number ? InHexadecimal(value->bytes) : UpToEndMark(value->bytes);
    return true;
}

}  // namespace window
