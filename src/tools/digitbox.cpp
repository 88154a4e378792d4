// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/digitbox.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QValidator>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDecimalPlaces = 3;
constexpr int kHexadecimalPlaces = 6;
constexpr auto kDecimalDigits = "0123456789"_L1;
constexpr auto kHexadecimalDigits = "0123456789ABCDEF"_L1;

// Tab, Enter and Escape are for the form.
constexpr auto kDecimalControls = "\b\t\r\x1b"_L1;
constexpr auto kHexadecimalControls = "\b\t\r\x16\x18\x1a\x1b"_L1;

/// Judges texts that come by other ways than the keys; blanks around and a "#" in front go.
class DigitValidator : public QValidator {
 public:
  DigitValidator(QLatin1String digits, qsizetype places, QObject* parent)
      : QValidator(parent), digits_(digits), places_(places) {}

  State validate(QString& text, int& position) const override {
    QString bare = text.trimmed().toUpper();
    if (bare.startsWith(u'#')) bare.remove(0, 1);
    const bool fits = bare.size() <= places_ &&
                      std::all_of(bare.cbegin(), bare.cend(),
                                  [this](QChar digit) { return digits_.contains(digit); });
    if (!fits) return Invalid;
    if (bare.size() != text.size()) position = static_cast<int>(bare.size());
    text = bare;
    return Acceptable;
  }

 private:
  QLatin1String digits_;
  qsizetype places_;
};

/// The character of a key, with Ctrl a control character; NUL for a key without one.
QChar characterOf(const QKeyEvent& event) {
  const int letter = event.key() - Qt::Key_A;
  const bool withControl = event.modifiers().testFlag(Qt::ControlModifier);
  if (withControl && letter >= 0 && letter < 26) return QChar(letter + 1);
  const QString text = event.text();
  return text.size() == 1 && event.key() != Qt::Key_Delete ? text[0] : QChar();
}

}  // namespace

DigitBox::DigitBox(QWidget* parent) : QLineEdit(parent) {
  setHexadecimal(false);
}

void DigitBox::setHexadecimal(bool on) {
  hexadecimal_ = on;
  delete validator();
  setValidator(on ? new DigitValidator(kHexadecimalDigits, kHexadecimalPlaces, this)
                  : new DigitValidator(kDecimalDigits, kDecimalPlaces, this));
}

QSize DigitBox::sizeHint() const {
  // The inherited one is as wide as 17 letters; a blank at each end stays.
  const QFontMetrics metrics = fontMetrics();
  const int places = (hexadecimal_ ? kHexadecimalPlaces : kDecimalPlaces) + 2;
  const QSize inherited = QLineEdit::sizeHint();
  const int spare = inherited.width() - 17 * metrics.horizontalAdvance(u'x');
  return {places * metrics.horizontalAdvance(u'0') + spare, inherited.height()};
}

void DigitBox::keyPressEvent(QKeyEvent* event) {
  const QChar key = characterOf(*event);
  const QLatin1String controls = hexadecimal_ ? kHexadecimalControls : kDecimalControls;
  if (key.isNull() || controls.contains(key)) return QLineEdit::keyPressEvent(event);
  const QChar digit = hexadecimal_ ? key.toUpper() : key;
  if ((hexadecimal_ ? kHexadecimalDigits : kDecimalDigits).contains(digit)) insert(digit);
}

void DigitBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason) return;
  selectAll();
  // The click that brings the focus would next place the caret.
  if (reason == Qt::MouseFocusReason)
    QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
}

}  // namespace quillane
