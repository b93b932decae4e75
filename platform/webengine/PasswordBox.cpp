#include "platform/webengine/PasswordBox.h"

#include <QAuthenticator>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace webengine {

void AskForPassword(QWidget* window, const QUrl& url, QAuthenticator& authenticator) {
    QDialog box(window);
    box.setWindowTitle(QDialog::tr("Password"));
    auto* form = new QFormLayout(&box);
    auto* words = new QLabel(QDialog::tr("%1 asks for a name and a password.").arg(url.host()), &box);
    words->setTextFormat(Qt::PlainText);
    auto* name = new QLineEdit(&box);
    auto* password = new QLineEdit(&box);
    password->setEchoMode(QLineEdit::Password);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &box);
    form->addRow(words);
    form->addRow(QDialog::tr("Name"), name);
    form->addRow(QDialog::tr("Password"), password);
    form->addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
    if (box.exec() != QDialog::Accepted) return;
    authenticator.setUser(name->text());
    authenticator.setPassword(password->text());
}

}  // namespace webengine
