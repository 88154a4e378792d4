// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/rendering.h"

#include "preview/screens.h"
#include "preview/surface.h"
#include "shell/language.h"
#include "shell/state.h"
#include "theme/files.h"
#include "thmtool/fixedworld.h"
#include "thmtool/openedtheme.h"
#include "thmtool/tool.h"

#include <QBuffer>

#include <algorithm>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// What differs between the generations when their screens are painted.
struct Painting2 {
  using Engine = clsVistrel;
  static constexpr Generation kGeneration = Generation::Two;
  static constexpr QSize kSize = Surface::kSize2;
  static auto screens() { return screensOfGeneration2(); }
  static void init(Engine& engine, PublicState& state, const RenderSettings& settings,
                   const FaultReporter& report) {
    state.LanguageFile2 = settings.languageFile;
    InitPreview2(engine, state, settings.phone, report);
    engine.ShowIRIcon = settings.infrared;
  }
};

/// The same for 3G.
struct Painting3G {
  using Engine = clsVistrel3G;
  static constexpr Generation kGeneration = Generation::ThreeG;
  static constexpr QSize kSize = Surface::kSize3G;
  static auto screens() { return screensOf3G(); }
  static void init(Engine& engine, PublicState& state, const RenderSettings& settings,
                   const FaultReporter& report) {
    state.LanguageFile3G = settings.languageFile;
    InitPreview3G(engine, state, settings.phone, report);
    engine.DrawImages = settings.images;
  }
};

template <typename Screens>
QString idsOf(const Screens& screens) {
  QStringList ids;
  for (const auto& screen : screens)
    ids += screen.id;
  return ids.join(u' ');
}

template <typename Screens>
auto pick(const Screens& screens, const QStringList& ids) {
  std::vector<typename Screens::value_type> picked;
  if (ids.isEmpty()) picked.assign(screens.begin(), screens.end());
  for (const QString& id : ids) {
    const auto found = std::find_if(screens.begin(), screens.end(),
                                    [&id](const auto& screen) { return screen.id == id; });
    if (found == screens.end())
      throw UsageError(
          u"The theme's phones have no screen \"%1\". They have: %2."_s.arg(id, idsOf(screens)));
    picked.push_back(*found);
  }
  return picked;
}

template <class Painting>
RenderedScreen paint(const Screen<typename Painting::Engine>& screen,
                     typename Painting::Engine& engine, Border border, const QString& workFolder) {
  RenderedScreen result{screen.id, screen.caption, {}, {}};
  Surface surface(Painting::kSize);
  surface.setFontSize(8);
  engine.setSurface(surface);
  try {
    screen.paint(engine);
  } catch (const Fault& fault) {
    result.fault = QString(fault.description()).remove(workFolder + u'/');
  }
  result.image = framedScreen(surface.image(), Painting::kGeneration, border);
  return result;
}

template <class Painting>
std::vector<RenderedScreen> renderWith(const OpenedTheme& opened, const RenderSettings& settings,
                                       const QStringList& ids, const FaultReporter& report) {
  const auto screens = pick(Painting::screens(), ids);
  FixedWorld world(settings.now, settings.seed);
  typename Painting::Engine engine(world);
  PublicState state;
  Painting::init(engine, state, settings, report);
  engine.takeTheme(opened.theme.values);
  std::vector<RenderedScreen> results;
  for (const auto& screen : screens) {
    world.restart();
    results.push_back(paint<Painting>(screen, engine, settings.border, opened.folder.path()));
  }
  return results;
}

}  // namespace

std::vector<RenderedScreen> renderScreens(const OpenedTheme& theme, const RenderSettings& settings,
                                          const QStringList& ids, const FaultReporter& report) {
  return theme.generation() == Generation::Two
             ? renderWith<Painting2>(theme, settings, ids, report)
             : renderWith<Painting3G>(theme, settings, ids, report);
}

QImage magnified(const QImage& image, int factor) {
  return factor == 1 ? image : image.scaled(image.size() * factor);
}

void savePng(const QImage& image, const QString& path) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!image.save(&buffer, "PNG"))
    throw Fault(FaultNumber::DeviceFault,
                u"\"%1\": The picture is too large to be written."_s.arg(path));
  saveFile(path, bytes);
}

}  // namespace quillane
