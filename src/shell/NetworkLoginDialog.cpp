#include "shell/NetworkLoginDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/ShellTexts.h"

namespace renvale::shell {
namespace {

QLineEdit* AddField(QFormLayout* form, const QString& caption, const QString& value, bool shown) {
  auto* field = new QLineEdit(value);
  field->setMinimumWidth(260);
  form->addRow(caption, field);
  form->setRowVisible(field, shown);
  return field;
}

}  // namespace

NetworkLoginDialog::NetworkLoginDialog(const platform::LoginRequest& request, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("NetworkLogin"));
  setWindowTitle(texts::kLoginCaption);
  auto* message = new QLabel(request.message, this);
  message->setWordWrap(true);
  auto* form = new QFormLayout;
  user_ = AddField(form, texts::kLoginUser, request.user, request.needsUser);
  domain_ = AddField(form, texts::kLoginDomain, request.domain, request.needsDomain);
  password_ = AddField(form, texts::kLoginPassword, QString(), request.needsPassword);
  password_->setEchoMode(QLineEdit::Password);
  anonymous_ = new QCheckBox(texts::kLoginAnonymous, this);
  anonymous_->setVisible(request.anonymousAllowed);
  for (QLineEdit* field : {user_, domain_, password_})
    connect(anonymous_, &QCheckBox::toggled, field, &QWidget::setDisabled);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
  buttons->addButton(texts::kLoginConnect, QDialogButtonBox::AcceptRole)->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(message);
  layout->addLayout(form);
  layout->addWidget(anonymous_);
  layout->addWidget(buttons);
  // The person types where something is missing: the password once the
  // user name is known.
  (request.needsUser && request.user.isEmpty() ? user_ : password_)->setFocus();
}

bool NetworkLoginDialog::Ask(const platform::LoginRequest& request, platform::LoginAnswer* answer, QWidget* parent) {
  NetworkLoginDialog dialog(request, parent);
  if (dialog.exec() != QDialog::Accepted) return false;
  *answer = dialog.Answer();
  return true;
}

platform::LoginAnswer NetworkLoginDialog::Answer() const {
  return {user_->text(), domain_->text(), password_->text(), !anonymous_->isHidden() && anonymous_->isChecked()};
}

}  // namespace renvale::shell
