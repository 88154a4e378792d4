// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringView>

namespace quillane {

/// An opening tag as it stands in the text of a theme.
struct ScannedTag {
  QStringView name;
  QStringView value;  ///< Of its first attribute, in quotes of either kind; empty for none.
  bool inComment;
};

/// All opening tags of a text in order, those in comments too: what a maker wrote, whereas
/// `ParseXML` tells what a reader finds. Takes time in proportion to the text.
QList<ScannedTag> scanTags(QStringView text);

}  // namespace quillane
