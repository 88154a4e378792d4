// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/partbar.h"

namespace quillane {

PartBar::PartBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {
  setInvertedAppearance(true);
  setInvertedControls(false);
  setFocusPolicy(Qt::WheelFocus);
  // The inherited menu speaks of the other direction.
  setContextMenuPolicy(Qt::PreventContextMenu);
  connect(this, &QAbstractSlider::actionTriggered, this, &PartBar::turnAction);
}

void PartBar::mousePressEvent(QMouseEvent* event) {
  pressed_ = true;
  QScrollBar::mousePressEvent(event);
}

void PartBar::mouseReleaseEvent(QMouseEvent* event) {
  QScrollBar::mouseReleaseEvent(event);
  pressed_ = false;
}

// The inverted appearance turns the slider, the wheel and the arrow keys; not Home and End, nor
// what is pressed around the slider.
void PartBar::turnAction(int action) {
  if (action == SliderToMinimum) return setSliderPosition(maximum());
  if (action == SliderToMaximum) return setSliderPosition(minimum());
  if (!pressed_) return;
  switch (action) {
    case SliderSingleStepAdd:
      return setSliderPosition(value() - singleStep());
    case SliderSingleStepSub:
      return setSliderPosition(value() + singleStep());
    case SliderPageStepAdd:
      return setSliderPosition(value() - pageStep());
    case SliderPageStepSub:
      return setSliderPosition(value() + pageStep());
    default:
      break;
  }
}

}  // namespace quillane
