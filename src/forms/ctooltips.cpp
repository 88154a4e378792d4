// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/ctooltips.h"

#include "forms/balloon.h"
#include "forms/formicons.h"

#include <QEvent>
#include <QWidget>

namespace quillane {

namespace {

constexpr int kWarningPicture = 109;
constexpr int kErrorPicture = 110;

}  // namespace

QPixmap tipPicture(TipIcon icon) {
  switch (icon) {
    case TipIcon::Warning:
      return formPixmap(kWarningPicture);
    case TipIcon::Error:
      return formPixmap(kErrorPicture);
    case TipIcon::None:
      break;
  }
  return {};
}

cTooltips::cTooltips(QWidget* control)
    : QObject(control), control_(control), balloon_(new Balloon(control)) {
  control_->installEventFilter(this);
}

cTooltips::~cTooltips() = default;

void cTooltips::setText(const QString& text) {
  text_ = text;
  if (text_.isEmpty())
    balloon_->hide();
  else if (control_->underMouse())
    showBalloon();
}

void cTooltips::setTitle(TipIcon icon, const QString& title) {
  icon_ = icon;
  title_ = title;
}

bool cTooltips::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Enter && !text_.isEmpty()) showBalloon();
  if (event->type() == QEvent::Leave || event->type() == QEvent::Hide) balloon_->hide();
  return QObject::eventFilter(watched, event);
}

void cTooltips::showBalloon() {
  balloon_->showAt(control_->mapToGlobal(control_->rect().center()), tipPicture(icon_), title_,
                   text_);
}

}  // namespace quillane
