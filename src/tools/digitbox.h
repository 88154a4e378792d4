// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace quillane {

/// A text box for a few digits: drops all other keys and refuses other texts. It selects its text
/// when it gets the focus.
class DigitBox : public QLineEdit {
  Q_OBJECT
  /// False for up to three decimal digits, true for up to six hexadecimal ones in capitals; these
  /// may also be pasted, cut and undone with the keys.
  Q_PROPERTY(bool hexadecimal READ isHexadecimal WRITE setHexadecimal)

 public:
  explicit DigitBox(QWidget* parent = nullptr);

  bool isHexadecimal() const { return hexadecimal_; }
  void setHexadecimal(bool on);

  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  bool hexadecimal_ = false;
};

}  // namespace quillane
