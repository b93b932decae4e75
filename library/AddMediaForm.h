// The dialog that looks for media files in a folder and below it, and adds them to the library.
//
// The folders, the pattern and the search button stand at the left, the files found at the right with the
// buttons below them. While a search or an adding runs, a panel over the files tells how far it is.
#pragma once

#include "controls/CommandButton.h"
#include "controls/FolderLists.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/ProgressBar.h"
#include "controls/Timer.h"
#include "ports/Files.h"
#include "store/DataSource.h"

namespace library {

struct AddMediaForm {
    /// `files` must outlive the form.
    explicit AddMediaForm(const ports::Files& files);

    controls::Form frmAddMedia{"frmAddMedia", "Add Media", controls::BorderStyle::Sizable};
    controls::Image imgBG{"imgBG"};

    controls::Label lblDrive{"lblDrive", "DRIVE"};
    controls::DriveListBox Drive1;
    controls::Label lblFolder{"lblFolder", "FOLDER"};
    controls::DirListBox Dir1;
    controls::Label lblPattern{"lblPattern", "FILES TO FIND"};
    controls::ListBox lstPattern{"lstPattern"};
    controls::CommandButton cmdGetFiles{"cmdGetFiles", "Get Files"};

    controls::Label lblFiles{"lblFiles", "FILES FOUND"};
    controls::Label lblTotalFilesLabel{"lblTotalFilesLabel", "Total files:"};
    controls::Label lblTotalFiles{"lblTotalFiles", "0"};
    controls::ListBox lstFiles{"lstFiles"};
    controls::Label lblNotice{"lblNotice"};  ///< what went wrong in the last search

    controls::Frame fraControls{"fraControls"};
    controls::Image imgAdd{"imgAdd", "addone"};
    controls::Image imgAddOver{"imgAddOver", "addoneover"};
    controls::Image imgAddAll{"imgAddAll", "addall"};
    controls::Image imgAddAllOver{"imgAddAllOver", "addallover"};
    controls::Image imgBack{"imgBack", "done"};
    controls::Image imgBackOver{"imgBackOver", "doneover"};

    controls::Frame fraSearch{"fraSearch"};
    controls::Label lblSearch{"lblSearch"};        ///< what is going on
    controls::Label lblDirectory{"lblDirectory"};  ///< the folder being searched
    controls::Label lblProgress{"lblProgress"};    ///< how many files are added
    controls::ProgressBar pbProgress{"pbProgress"};
    controls::CommandButton cmdCancel{"cmdCancel", "Cancel"};

    // Hidden: the artist and title in work, the last key, the words of a name.
    controls::Label Label1{"Label1"};
    controls::Label Label2{"Label2"};
    controls::Label lblEntryCount{"lblEntryCount", "Song ID"};
    controls::ListBox lstAddTrack{"lstAddTrack"};

    controls::Timer tmrSearch{"tmrSearch", 10};
    store::DataSource datAdd{"datAdd"};
    store::DataSource datFolder{"datFolder"};

private:
    void Compose();
    void Describe();
    void DescribePictures();
};

}  // namespace library
