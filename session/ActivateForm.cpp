#include "session/ActivateForm.h"

#include "controls/Arrange.h"

namespace session {
namespace {

using controls::Px;

}  // namespace

ActivateForm::ActivateForm() {
    frmActivate.SetContentSize(Px(460), Px(260));
    frmActivate.SetLook("splash");
    frmActivate.SetStaysInFront(true);
    frmActivate.Add(fraSplash, Browser, Timer1, Timer2);
    fraSplash.Add(lblProduct, lblProductLine, lblNowLoading, lblLoading, pbLoad, fraConnection);
    fraConnection.Add(lblNoConnection, cmdRetry, cmdJustMusic, cmdClose);

    Place(fraSplash, 0, 0, 460, 260);
    Place(lblProduct, 40, 56, 380, 44);
    Place(lblProductLine, 40, 104, 380, 20);
    Place(lblNowLoading, 40, 172, 120, 20);
    Place(lblLoading, 168, 172, 252, 20);
    Place(pbLoad, 40, 200, 380, 8);
    Place(fraConnection, 24, 152, 412, 84);
    Place(lblNoConnection, 16, 12, 352, 20);
    Place(cmdClose, 376, 8, 24, 24);
    Place(cmdRetry, 208, 44, 92, 28);
    Place(cmdJustMusic, 308, 44, 92, 28);

    fraSplash.SetLook("panel");
    fraConnection.SetLook("raised");
    lblProduct.SetLook("title");
    lblProductLine.SetLook("muted");
    lblNowLoading.SetLook("muted");
    cmdRetry.SetLook("accent");
    lblLoading.SetAlign(controls::Alignment::Right);
    pbLoad.SetAccessibleName("Loading");
    cmdClose.SetAccessibleName("Skip the connection");
    Browser.SetVisible(false);
    fraConnection.SetVisible(false);
}

}  // namespace session
