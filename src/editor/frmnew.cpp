// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmnew.h"

#include "forms/formicons.h"
#include "preview/clsvistrel.h"
#include "preview/clsvistrel3g.h"
#include "preview/surface.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "ui_frmnew.h"

#include <QKeyEvent>
#include <QPainter>

namespace quillane {

namespace {

constexpr QSize kIcon(128, 160);
constexpr int kMargin = 5;

/// The icon of a button: a screen of an engine that shows no theme, in the icon's middle.
template <class Engine>
QIcon iconOf(Engine& engine, QSize size, void (Engine::*draw)()) {
  Surface surface(size);
  engine.setSurface(surface);
  skipOnFault([&] { (engine.*draw)(); });
  const QImage screen = surface.image().copy(kMargin, kMargin, size.width() - 2 * kMargin,
                                             size.height() - 2 * kMargin - 1);
  QPixmap icon(kIcon);
  icon.fill(Qt::transparent);
  QPainter(&icon).drawImage((kIcon.width() - screen.width()) / 2,
                            (kIcon.height() - screen.height()) / 2, screen);
  return icon;
}

}  // namespace

frmNew::frmNew(QWidget* owner, const EditorDesk& desk)
    : QDialog(owner), ui_(std::make_unique<Ui::frmNew>()) {
  ui_->setupUi(this);
  const auto quiet = [](const Fault&) {};  // The start has told of the language file.
  clsVistrel two(desk.world);
  InitPreview2(two, desk.state, desk.settings, quiet);
  clsVistrel3G threeG(desk.world);
  InitPreview3G(threeG, desk.state, desk.settings, quiet);
  ui_->btnNew_0->setIcon(iconOf(two, Surface::kSize2, &clsVistrel::DrawDesktop));
  ui_->btnNew_1->setIcon(iconOf(two, Surface::kSize2, &clsVistrel::DrawMenuMedium));
  ui_->btnNew_2->setIcon(iconOf(threeG, Surface::kSize3G, &clsVistrel3G::DrawDesktop));
  const std::pair<QAbstractButton*, Generation> choices[] = {{ui_->btnNew_0, Generation::Two},
                                                             {ui_->btnNew_1, Generation::Two},
                                                             {ui_->btnNew_2, Generation::ThreeG}};
  for (const auto& [button, generation] : choices) {
    button->setCursor(Qt::PointingHandCursor);
    connect(button, &QAbstractButton::clicked, this, [this, generation = generation] {
      choice_ = generation;
      accept();
    });
  }
  ui_->btnCancel->setIcon(formIcon(102));
  connect(ui_->btnCancel, &QAbstractButton::clicked, this, &QDialog::reject);
}

frmNew::~frmNew() = default;

// A tool button knows Space alone.
void frmNew::keyPressEvent(QKeyEvent* event) {
  auto* button = qobject_cast<QToolButton*>(focusWidget());
  if (button && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
    button->click();
  else
    QDialog::keyPressEvent(event);
}

}  // namespace quillane
