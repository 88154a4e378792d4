// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/screens.h"

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr Screen<clsVistrel> kGeneration2[] = {
    {"standby"_L1, "Standby"_L1, "picStandby"_L1, [](clsVistrel& e) { e.DrawStandby(); }},
    {"desktop"_L1, "Desktop"_L1, "picDesktop"_L1, [](clsVistrel& e) { e.DrawDesktop(); }},
};

constexpr Screen<clsVistrel3G> k3G[] = {
    {"standby"_L1, "Standby"_L1, "picStandby2"_L1, [](clsVistrel3G& e) { e.DrawStandby(); }},
    {"desktop"_L1, "Desktop"_L1, "picDesktop2"_L1, [](clsVistrel3G& e) { e.DrawDesktop(); }},
    {"softkeys-1"_L1, "Soft Keys 1"_L1, ""_L1, [](clsVistrel3G& e) { e.DrawSoftkeys(0); }},
    {"softkeys-2"_L1, "Soft Keys 2"_L1, ""_L1, [](clsVistrel3G& e) { e.DrawSoftkeys(1); }},
};

}  // namespace

std::span<const Screen<clsVistrel>> screensOfGeneration2() {
  return kGeneration2;
}

std::span<const Screen<clsVistrel3G>> screensOf3G() {
  return k3G;
}

}  // namespace quillane
