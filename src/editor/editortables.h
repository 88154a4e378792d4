// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/elements.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace quillane {

/// A colour as an editor shows it: the swatch `lbl<stem>Clr` and the text box `txt<stem>Clr`.
struct ColorSlot {
  QString group;    ///< Caption of the frame around it.
  QString caption;  ///< Its own.
  QString stem;
  int color;             ///< Index in the generation's schema.
  QList<int> followers;  ///< Colours that go with it unless Ctrl is held.
};

/// What a tab of an editor is for.
enum class TabKind { Colors, Images, Information, Source };

/// A tab of an editor.
struct EditorTab {
  QString caption;
  TabKind kind;
  QList<ColorSlot> colorSlots;
  QStringList panes;  ///< The drawing boxes whose screens its slots change.
};

/// The tabs of a generation's editor in their order.
QList<EditorTab> editorTabs(Generation generation);

}  // namespace quillane
