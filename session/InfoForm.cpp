#include "session/InfoForm.h"

#include <algorithm>

#include "controls/Arrange.h"

namespace session {
namespace {

// All in pixels.
constexpr double kMargin = 16;
constexpr double kGap = 8;
constexpr double kNavigation = 128;
constexpr double kButton = 32;
constexpr double kPaneLeft = kMargin + kNavigation + kMargin;
constexpr double kPaneWidth = 472;
constexpr double kPaneHeight = 472;
constexpr double kInner = kPaneWidth - 2 * kMargin;
constexpr double kHeading = 16;
constexpr double kFirstRow = kMargin + kHeading + kGap;
constexpr double kRow = 25;
constexpr double kIndent = 24;
constexpr double kBox = 28;
constexpr double kLastRow = kPaneHeight - kMargin - kButton;

void MakePane(controls::Frame& pane, controls::Label& heading) {
    Place(pane, kPaneLeft, kMargin, kPaneWidth, kPaneHeight);
    Place(heading, kMargin, kMargin, kInner, kHeading);
    pane.SetLook("panel");
    heading.SetLook("heading");
}

// What an option depends on is above it, nearer to the edge.
double DepthOf(const Option& option) {
    double depth = 0;
    for (const auto* parent = &option; parent->parent != nullptr; depth += kIndent) {
        const auto is_parent = [parent](const Option& one) { return one.box == parent->parent; };
        parent = std::find_if(kOptions.begin(), kOptions.end(), is_parent);
    }
    return depth;
}

}  // namespace

InfoForm::InfoForm(const ports::Files& files) : back_up(files) {
    frmInfo.SetContentSize(controls::Px(kPaneLeft + kPaneWidth + kMargin),
                           controls::Px(kPaneHeight + 2 * kMargin));
    frmInfo.Add(fraPanes, fraOptions, maintenance.fraMisc, back_up.fraBackUp);
    fraPanes.Add(cmdOptions, cmdHistory, cmdBackingUp);
    fraPanes.SetLook("bare");
    fraPanes.SetAccessibleName("Panes");
    Place(fraPanes, kMargin, kMargin, kNavigation, 3 * (kButton + kGap));
    double top = 0;
    for (controls::CommandButton* button : {&cmdOptions, &cmdHistory, &cmdBackingUp}) {
        Place(*button, 0, top, kNavigation, kButton);
        top += kButton + kGap;
    }
    cmdOptions.SetToolTipText("What the program does, and keeps");
    cmdHistory.SetToolTipText("Play counts, media library and history");
    cmdBackingUp.SetToolTipText("Play lists as files");
    FillOptions();
    FillMaintenance();
    FillBackUp();
    controls::Hide(maintenance.fraMisc, back_up.fraBackUp);
}

void InfoForm::FillOptions() {
    MakePane(fraOptions, lblOptions);
    fraOptions.Add(lblOptions);
    double top = kFirstRow;
    for (const Option& option : kOptions) {
        controls::CheckBox& box = options.*option.box;
        if (&box == &options.chkGoogle) {
            fraOptions.Add(options.chkWebAddress);
            Place(options.chkWebAddress, kMargin, top, kInner, kRow);
            top += kRow;
        }
        fraOptions.Add(box);
        Place(box, kMargin + DepthOf(option), top, kInner - DepthOf(option), kRow);
        top += kRow;
    }
    fraOptions.Add(lblFileType, options.cmdNewUser, cmdApply);
    Place(lblFileType, kMargin, top + kGap, kInner, kLastRow - 2 * kGap - top);
    Place(options.cmdNewUser, kMargin, kLastRow, 144, kButton);
    Place(cmdApply, kPaneWidth - kMargin - 112, kLastRow, 112, kButton);
    lblFileType.SetLook("status");
    options.cmdNewUser.SetToolTipText("Make a profile for another user");
    cmdApply.SetLook("accent");
    cmdApply.SetDefault(true);
    cmdApply.SetToolTipText("Store the options");
}

void InfoForm::FillMaintenance() {
    constexpr double kWidth = 152;
    constexpr double kStep = 56;
    MakePane(maintenance.fraMisc, maintenance.lblMisc);
    const struct {
        controls::Label& label;
        controls::CommandButton& button;
    } rows[] = {{maintenance.lblReset, maintenance.cmdReset},
                {maintenance.lblEmpty, maintenance.cmdEmpty},
                {maintenance.lblAddMedia, maintenance.cmdAddMedia},
                {maintenance.lblDeleteHistory, maintenance.cmdDeleteHistory}};
    double top = kFirstRow + kGap;
    for (const auto& row : rows) {
        Place(row.label, kMargin, top + 4, kInner - kWidth - kMargin, 24);
        Place(row.button, kPaneWidth - kMargin - kWidth, top, kWidth, kButton);
        top += kStep;
    }
    // The one text that takes two lines.
    maintenance.lblReset.Move(maintenance.lblReset.Left(), maintenance.cmdReset.Top(),
                              maintenance.lblReset.Width(), maintenance.cmdReset.Height());
}

void InfoForm::FillBackUp() {
    constexpr double kLabel = 104;
    constexpr double kField = kMargin + kLabel;
    constexpr double kFolder = kFirstRow + 52;
    constexpr double kLast = kFolder + kBox + kGap;
    constexpr double kColumns = kLast + 20 + kGap;
    constexpr double kListTop = kColumns + kHeading + kGap;
    constexpr double kArtist = kLastRow - kMargin - 2 * kBox - kGap;
    constexpr double kListWidth = (kInner - kMargin) / 2;
    BackUpControls& pane = back_up;
    MakePane(pane.fraBackUp, pane.lblBackUp);
    Place(pane.Label4, kMargin, kFirstRow, kInner, 48);
    Place(pane.lblBackFolder, kMargin, kFolder, kLabel, kBox);
    Place(pane.txtBackFolder, kField, kFolder, kInner - kLabel, kBox);
    Place(pane.lblLastBackupLabel, kMargin, kLast, kLabel, 20);
    Place(pane.lblLastBackup, kField, kLast, kInner - kLabel, 20);
    Place(pane.lblEditPlayList, kMargin, kColumns, kListWidth, kHeading);
    Place(pane.lstEditPlayList, kMargin, kListTop, kListWidth, kArtist - kGap - kListTop);
    Place(pane.lblEditTracks, kMargin + kListWidth + kMargin, kColumns, kListWidth, kHeading);
    Place(pane.lstEditPlayListTracks, kMargin + kListWidth + kMargin, kListTop, kListWidth,
          kArtist - kGap - kListTop);
    Place(pane.lblEditArtist, kMargin, kArtist, kLabel, kBox);
    Place(pane.txtEditArtist, kField, kArtist, kInner - kLabel, kBox);
    Place(pane.lblEditTitle, kMargin, kArtist + kBox + kGap, kLabel, kBox);
    Place(pane.txtEditTitle, kField, kArtist + kBox + kGap, kInner - kLabel, kBox);
    Place(pane.lblEditNumber, kMargin, kLastRow + 6, kLabel, 20);
    Place(pane.lblEditTrackNumber, kField, kLastRow + 6, 80, 20);
    Place(pane.cmdBackUpAll, kPaneWidth - kMargin - 112 - kGap - 112, kLastRow, 112, kButton);
    Place(pane.cmdBackUp, kPaneWidth - kMargin - 112, kLastRow, 112, kButton);

    for (controls::Label* heading : {&pane.lblEditPlayList, &pane.lblEditTracks})
        heading->SetLook("heading");
    pane.Label4.SetLook("muted");
    pane.lblLastBackup.SetLook("accent");
    pane.lblEditTrackNumber.SetLook("accent");
    pane.txtBackFolder.SetAccessibleName("Back up folder");
    pane.lblLastBackup.SetAccessibleName("Last back up");
    pane.lstEditPlayList.SetAccessibleName("Play lists");
    pane.lstEditPlayListTracks.SetAccessibleName("Tracks of the play list");
    pane.lstEditPlayListTracks.SetHint("Choose a play list");
    pane.txtEditArtist.SetAccessibleName("Artist of the track");
    pane.txtEditTitle.SetAccessibleName("Title of the track");
    pane.txtEditArtist.SetEnabled(false);
    pane.txtEditTitle.SetEnabled(false);
    pane.lblEditTrackNumber.SetAccessibleName("Number of the track");
    pane.cmdBackUpAll.SetToolTipText("Write the chosen play list to the folder");
    pane.cmdBackUp.SetToolTipText("Write every play list to the folder");
    pane.cmdBackUpAll.SetLook("accent");
    pane.cmdBackUpAll.SetDefault(true);
}

}  // namespace session
