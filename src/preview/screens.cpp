// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview/screens.h"

namespace quillane {
namespace {

constexpr QLatin1String operator""_l1(const char* text, std::size_t size) {
  return QLatin1String(text, static_cast<qsizetype>(size));
}

constexpr Screen<clsVistrel> kGeneration2[] = {
    {"standby"_l1, "Standby"_l1, "picStandby"_l1, [](clsVistrel& e) { e.DrawStandby(); }},
    {"desktop"_l1, "Desktop"_l1, "picDesktop"_l1, [](clsVistrel& e) { e.DrawDesktop(); }},
};

constexpr Screen<clsVistrel3G> k3G[] = {
    {"standby"_l1, "Standby"_l1, "picStandby2"_l1, [](clsVistrel3G& e) { e.DrawStandby(); }},
    {"desktop"_l1, "Desktop"_l1, "picDesktop2"_l1, [](clsVistrel3G& e) { e.DrawDesktop(); }},
    {"softkeys-1"_l1, "Soft Keys 1"_l1, ""_l1, [](clsVistrel3G& e) { e.DrawSoftkeys(0); }},
    {"softkeys-2"_l1, "Soft Keys 2"_l1, ""_l1, [](clsVistrel3G& e) { e.DrawSoftkeys(1); }},
};

}  // namespace

std::span<const Screen<clsVistrel>> screensOfGeneration2() {
  return kGeneration2;
}

std::span<const Screen<clsVistrel3G>> screensOf3G() {
  return k3G;
}

}  // namespace quillane
