// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/frmsplash.h"

#include "forms/formicons.h"
#include "theme/version.h"
#include "ui_frmsplash.h"

namespace quillane {

using namespace Qt::StringLiterals;

frmSplash::frmSplash()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint),
      ui_(std::make_unique<Ui::frmSplash>()) {
  ui_->setupUi(this);
  ui_->imgIcon->setPixmap(programPicture());
  ui_->lblVersion->setText(versionCaption());
}

frmSplash::~frmSplash() = default;

void frmSplash::setStatus(const QString& text) {
  ui_->lblStatus->setText(text);
  ui_->lblStatus->repaint();
}

QString versionCaption() {
  return u"Version: %1 Beta 2"_s.arg(QLatin1String(kVersion));
}

}  // namespace quillane
