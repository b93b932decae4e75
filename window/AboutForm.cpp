#include "window/AboutForm.h"

#include "controls/Arrange.h"

namespace window {
namespace {

// All in pixels.
constexpr double kMargin = 16;
constexpr double kPanelWidth = 448;
constexpr double kPanelHeight = 304;
constexpr double kIcon = 48;
constexpr double kTextLeft = kMargin + kIcon + kMargin;
constexpr double kInner = kPanelWidth - 2 * kMargin;
constexpr double kWide = kInner - kIcon - kMargin;
constexpr double kButton = 32;
constexpr double kButtonWidth = 168;
constexpr double kFirstButtons = kMargin + kPanelHeight + kMargin;
constexpr double kLastButtons = kFirstButtons + kButton + 8;

}  // namespace

AboutForm::AboutForm() {
    frmAbout.SetContentSize(controls::Px(kPanelWidth + 2 * kMargin),
                            controls::Px(kLastButtons + kButton + kMargin));
    frmAbout.Add(fraAbout, cmdLarkmoorHome, cmdUpdates, cmdSysInfo, cmdOK);
    fraAbout.Add(imgAbout, lblTitle, lblVersion, lblEngineHeading, lblEngine, lblStoresHeading, lblStores,
                 lblDisclaimer);

    Place(fraAbout, kMargin, kMargin, kPanelWidth, kPanelHeight);
    Place(imgAbout, kMargin, kMargin, kIcon, kIcon);
    Place(lblTitle, kTextLeft, kMargin, kWide, 24);
    Place(lblVersion, kTextLeft, kMargin + 28, kWide, 20);
    Place(lblEngineHeading, kMargin, 84, kInner, 16);
    Place(lblEngine, kMargin, 104, kInner, 36);
    Place(lblStoresHeading, kMargin, 156, kInner, 16);
    Place(lblStores, kMargin, 176, kInner, 36);
    Place(lblDisclaimer, kMargin, 228, kInner, 60);
    Place(cmdLarkmoorHome, kMargin, kFirstButtons, kButtonWidth, kButton);
    Place(cmdUpdates, kMargin + kButtonWidth + 8, kFirstButtons, kButtonWidth, kButton);
    Place(cmdSysInfo, kMargin, kLastButtons, kButtonWidth, kButton);
    Place(cmdOK, kMargin + kPanelWidth - 112, kLastButtons, 112, kButton);

    fraAbout.SetLook("panel");
    lblTitle.SetLook("title");
    lblVersion.SetLook("accent");
    lblEngineHeading.SetLook("heading");
    lblStoresHeading.SetLook("heading");
    lblDisclaimer.SetLook("muted");
    cmdOK.SetLook("accent");
    cmdOK.SetDefault(true);
    cmdOK.SetCancel(true);
    imgAbout.SetAccessibleName("Brindlepost");
    cmdLarkmoorHome.SetToolTipText("Open the maker's home page in a new tab");
    cmdUpdates.SetToolTipText("Open the page about updates in a new tab");
    cmdSysInfo.SetToolTipText("Open the desktop's tool that describes this computer");
}

}  // namespace window
