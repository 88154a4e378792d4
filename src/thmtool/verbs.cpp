// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/verbs.h"

namespace quillane {

namespace {

constexpr const Verb* kVerbs[] = {
    &kRenderVerb, &kInfoVerb, &kXmlVerb,  &kCheckVerb,     &kUnpackVerb,
    &kPackVerb,   &kNewVerb,  &kEditVerb, &kThumbnailVerb,
};

}  // namespace

std::span<const Verb* const> verbs() {
  return kVerbs;
}

}  // namespace quillane
