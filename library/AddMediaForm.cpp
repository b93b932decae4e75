#include "library/AddMediaForm.h"

#include "controls/Arrange.h"
#include "library/AddMediaLayout.h"

namespace library {

AddMediaForm::AddMediaForm(const ports::Files& files) : Drive1("Drive1", files), Dir1("Dir1", files) {
    Compose();
    Describe();
    DescribePictures();
    for (const std::string_view pattern : {"ALL FORMATS", "AUDIO FORMATS", "VIDEO FORMATS"})
        lstPattern.AddItem(pattern);
    lstPattern.SetListIndex(0);
    Hide(fraSearch, Label1, Label2, lblEntryCount, lstAddTrack);
    frmAddMedia.SetStaysInFront(true);
    frmAddMedia.SetContentSize(controls::Px(kAddMediaWidth), controls::Px(kAddMediaHeight));
    PlaceControls(*this);
}

void AddMediaForm::Compose() {
    frmAddMedia.Add(imgBG, lblDrive, Drive1, lblFolder, Dir1, lblPattern, lstPattern, cmdGetFiles, lblFiles,
                    lblTotalFilesLabel, lblTotalFiles, lstFiles, lblNotice, fraControls, fraSearch);
    frmAddMedia.Add(Label1, Label2, lblEntryCount, lstAddTrack, tmrSearch);
    fraControls.Add(imgAdd, imgAddOver, imgAddAll, imgAddAllOver, imgBack, imgBackOver);
    fraSearch.Add(lblSearch, lblDirectory, lblProgress, pbProgress, cmdCancel);
}

void AddMediaForm::Describe() {
    imgBG.SetLook("ground");
    fraControls.SetLook("bare");
    fraSearch.SetLook("raised");
    for (controls::Label* heading : {&lblDrive, &lblFolder, &lblPattern, &lblFiles, &lblSearch})
        heading->SetLook("heading");
    lblTotalFilesLabel.SetLook("muted");
    lblTotalFilesLabel.SetAlign(controls::Alignment::Right);
    lblTotalFiles.SetLook("accent");
    lblTotalFiles.SetAlign(controls::Alignment::Right);
    lblNotice.SetLook("warning");
    lblProgress.SetLook("muted");
    cmdGetFiles.SetLook("accent");
    cmdCancel.SetCancel(true);
    imgBG.SetAccessibleName("Background");
    Drive1.SetAccessibleName("Drive");
    Dir1.SetAccessibleName("Folder to search");
    lstPattern.SetAccessibleName("Files to find");
    lstFiles.SetAccessibleName("Files found");
    lstFiles.SetHint("Choose a folder and press Get Files");
    fraControls.SetAccessibleName("Add the files found");
    fraSearch.SetAccessibleName("Progress");
    lblDirectory.SetAccessibleName("Folder being searched");
    pbProgress.SetAccessibleName("Files added");
    lblTotalFiles.SetAccessibleName("Number of files found");
    cmdGetFiles.SetToolTipText("Search the folder for media files");
    cmdCancel.SetToolTipText("Stop now and keep what is there");
}

void AddMediaForm::DescribePictures() {
    NameTwins(imgAdd, imgAddOver, "Add one", "Add the selected file to the library");
    NameTwins(imgAddAll, imgAddAllOver, "Add all", "Add all files found to the library");
    NameTwins(imgBack, imgBackOver, "Done", "Back to the main window");
}

}  // namespace library
