// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/balloon.h"

#include "forms/dialogs.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRegion>
#include <QRegularExpression>
#include <QScreen>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTipLength = 12;
constexpr int kTipWidth = 14;
constexpr int kRadius = 6;
constexpr int kTipFromEdge = 24;
constexpr int kWidestText = 360;

/// Cuts the middle out of words that no line can hold, such as some names of files.
QString withShortWords(QString text) {
  static const QRegularExpression longWord(u"(\\S{30})\\S{8,}(\\S{10})"_s);
  return text.replace(longWord, u"\\1\u2026\\2"_s);
}

/// Shows a text on lines as long as they are, and breaks those that are too long.
void showText(QLabel& label, const QString& text) {
  label.setWordWrap(false);
  label.setMinimumWidth(0);
  label.setText(withShortWords(widgetText(text)));
  if (label.sizeHint().width() <= kWidestText) return;
  label.setWordWrap(true);
  label.setMinimumWidth(kWidestText);
}

}  // namespace

Balloon::Balloon(QWidget* owner)
    : QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint),
      icon_(new QLabel(this)),
      title_(new QLabel(this)),
      text_(new QLabel(this)) {
  setObjectName(u"balloon"_s);
  icon_->setObjectName(u"balloonIcon"_s);
  title_->setObjectName(u"balloonTitle"_s);
  text_->setObjectName(u"balloonText"_s);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  for (QLabel* label : {title_, text_}) {
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::ToolTipText);
  }
  QFont bold = title_->font();
  bold.setBold(true);
  title_->setFont(bold);
  auto* grid = new QGridLayout(this);
  grid->addWidget(icon_, 0, 0, Qt::AlignTop);
  grid->addWidget(title_, 0, 1);
  grid->addWidget(text_, 1, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setSizeConstraint(QLayout::SetFixedSize);
}

void Balloon::showAt(QPoint target, const QPixmap& icon, const QString& title,
                     const QString& text) {
  icon_->setPixmap(icon);
  icon_->setVisible(!icon.isNull());
  showText(*title_, title);
  showText(*text_, text);
  const QScreen* screen = QGuiApplication::screenAt(target);
  const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
  for (const bool above : {true, false}) {
    above_ = above;
    layout()->setContentsMargins(10, above_ ? 8 : 8 + kTipLength, 12, above_ ? 8 + kTipLength : 8);
    layout()->activate();
    if (target.y() - sizeHint().height() >= room.top()) break;
  }
  resize(sizeHint());
  const int left = qMax(room.left(), qMin(target.x() - kTipFromEdge, room.right() - width()));
  tip_ = qBound(kRadius + kTipWidth, target.x() - left, width() - kRadius - kTipWidth);
  move(left, above_ ? target.y() - height() : target.y());
  setMask(QRegion(outline().toFillPolygon().toPolygon()));
  show();
}

QPainterPath Balloon::outline() const {
  const QRectF body = above_
                          ? QRectF(0.5, 0.5, width() - 1, height() - 1 - kTipLength)
                          : QRectF(0.5, kTipLength + 0.5, width() - 1, height() - 1 - kTipLength);
  const qreal edge = above_ ? body.bottom() : body.top();
  const qreal point = above_ ? height() - 0.5 : 0.5;
  QPainterPath path;
  path.addRoundedRect(body, kRadius, kRadius);
  QPainterPath tip;
  const qreal inside = above_ ? edge - 1 : edge + 1;
  tip.addPolygon(QPolygonF{{tip_ - kTipWidth / 2.0, inside},
                           {static_cast<qreal>(tip_), point},
                           {tip_ + kTipWidth / 2.0, inside}});
  return path.united(tip);
}

void Balloon::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::ToolTipText));
  painter.setBrush(palette().color(QPalette::ToolTipBase));
  painter.drawPath(outline());
}

}  // namespace quillane
