// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "preview/screens.h"
#include "preview/surface.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "support/stillworld.h"
#include "support/tinygif.h"
#include "theme/fault.h"
#include "theme/load.h"

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

const auto kFile = u"theme.xml"_s;

/// A folder for themes, with images smaller and larger than any slot and one that is no picture.
class ImageFolder : public Scratch {
 public:
  ImageFolder() {
    write(u"small.gif"_s, tinyGif({2, 3}, {0, 0, 2, 3}, 1, 1));
    write(u"large.gif"_s, tinyGif({200, 300}, {0, 0, 150, 150}, 2));
    write(u"none.gif"_s, "none");
  }
};

template <class Engine, class Screens>
void paintAll(const ThemeValues& values, const PublicState& state, const Screens& screens,
              QSize size,
              void (*init)(Engine&, const PublicState&, const SettingsStore&,
                           const FaultReporter&)) {
  StillWorld world;
  Engine engine(world);
  init(engine, state, MemorySettings(),
       [](const Fault&) { expect(false, "a language file that is there can be read"); });
  engine.takeTheme(values);
  for (const Screen<Engine>& screen : screens) {
    Surface surface(size);
    engine.setSurface(surface);
    skipOnFault([&] { screen.paint(engine); });
    expect(surface.image().size() == size, "a screen of the phone's size");
  }
}

}  // namespace

void screensTarget(QByteArrayView bytes) {
  static const ImageFolder folder;
  folder.write(kFile, bytes);
  ImageStates states{};
  const std::optional<LoadedTheme> theme = loadTheme(folder.path(), states, [](const Fault&) {});
  expect(theme.has_value(), "a theme wherever there is an XML");

  PublicState state;
  state.ConfigFolder2 = state.ConfigFolder3G = folder.path() + u'/';
  state.LanguageFile2 = state.LanguageFile3G = kFile;
  if (theme->values.schema().generation == Generation::Two)
    paintAll<clsVistrel>(theme->values, state, screensOfGeneration2(), Surface::kSize2,
                         InitPreview2);
  else
    paintAll<clsVistrel3G>(theme->values, state, screensOf3G(), Surface::kSize3G, InitPreview3G);
}

}  // namespace quillane
