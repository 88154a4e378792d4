// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/values.h"

#include <QList>

namespace quillane {

/// Indexes of the colours that are too close to tell text from its ground, group by group; empty
/// when all can be read. Two colours are close when the sums of their parts differ by less than 32
/// in generation 2, by less than 20 in 3G, whatever the eye says: pure red is close to pure blue.
///
/// An empty colour is black. A text that is no colour is close to nothing.
QList<int> closeColors(const ThemeValues& values);

}  // namespace quillane
