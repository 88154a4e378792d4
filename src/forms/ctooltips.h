// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPixmap>
#include <QString>

class QWidget;

namespace quillane {

class Balloon;

/// The icon beside a balloon's title.
enum class TipIcon { None = 0, Warning = 2, Error = 3 };

/// The picture of a balloon's icon, which the status line shows too; a null one for none.
QPixmap tipPicture(TipIcon icon);

/// A balloon tooltip on one control: title, icon and text, shown as soon as the pointer rests on
/// the control and as long as it stays there. Without a text there is no balloon.
class cTooltips : public QObject {
  Q_OBJECT

 public:
  /// `control` is the holder and outlives the object.
  explicit cTooltips(QWidget* control);
  ~cTooltips() override;

  void setText(const QString& text);
  void setTitle(TipIcon icon, const QString& title);

  const QString& text() const { return text_; }
  const QString& title() const { return title_; }
  TipIcon icon() const { return icon_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showBalloon();

  QWidget* control_;
  QString text_;
  QString title_;
  TipIcon icon_ = TipIcon::None;
  Balloon* balloon_;
};

}  // namespace quillane
