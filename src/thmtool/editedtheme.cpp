// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "thmtool/editedtheme.h"

#include "shell/imagerules.h"
#include "shell/themecheck.h"
#include "theme/save.h"
#include "theme/writer.h"
#include "thmtool/folders.h"
#include "thmtool/savewarnings.h"

#include <QFileInfo>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

/// Place of an element among the rows of a generation. Throws `UsageError`.
template <typename Rows>
int placeOf(const Assignment& wanted, const ThemeSchema& schema, const Rows& rows,
            const QString& kind) {
  const int place = rowOfElement(rows, wanted.element);
  if (place >= 0) return place;
  const QString generation = schema.generation == Generation::Two ? u"Generation 2"_s : u"3G"_s;
  throw UsageError(u"%1 has no %2 \"%3\"."_s.arg(generation, kind, wanted.element));
}

void checkPicture(const ThemeSchema& schema, const ImageElement& slot, const QString& path) {
  const QSize size = themePictureSize(schema, path);
  if (takesSize(slot, size)) return;
  // The lines of the window's message as one.
  throw Fault(FaultNumber::BadPicture,
              imageDimensionsText(slot, path, size).replace("\r\n"_L1, " "_L1).simplified());
}

/// The theme that decides on the index. An image that was taken out shall keep nobody from saving.
const ThemeValues* shownFor(const EditedTheme& theme, const ThemeValues* shown) {
  const bool isSmallEmpty = theme.values.schema().generation == Generation::Two &&
                            theme.values.image(gen2::TitleImageSmall).isEmpty();
  return isSmallEmpty ? nullptr : shown;
}

void tellFindings(const QList<Finding>& findings, const Streams& streams) {
  for (const Finding& finding : findings)
    streams.complain(finding.text);
}

}  // namespace

void applyEdits(EditedTheme& theme, const EditOptions& options) {
  const ThemeSchema& schema = theme.values.schema();
  for (const Assignment& color : options.colors)
    theme.values.setColor(placeOf(color, schema, schema.colors, u"colour"_s), color.text);
  for (const Assignment& image : options.images)
    theme.values.setImage(
        placeOf(image, schema, schema.images, u"image"_s),
        image.text.isEmpty() ? QString() : QFileInfo(pathOf(image.text)).absoluteFilePath());
  for (const Assignment& image : options.images) {
    const int slot = rowOfElement(schema.images, image.element);
    // An earlier picture of the same slot is not there any more.
    const QString& path = theme.values.image(slot);
    if (!path.isEmpty()) checkPicture(schema, schema.images[static_cast<std::size_t>(slot)], path);
  }
  for (const Assignment& tag : options.tags)
    theme.tags.at(static_cast<std::size_t>(rowOfElement(kThemeTags, tag.element))) = tag.text;
}

int saveEdited(const EditedTheme& theme, const ThemeValues* shown, const QString& themePath,
               const EditOptions& options, const Streams& streams) {
  const ThemeTagTexts tags = options.writeTags ? theme.tags : ThemeTagTexts();
  const QString xml = generateXml(theme.values, tags);
  const QStringList warnings = saveWarnings(theme.values, tags, xml);
  for (const QString& warning : warnings)
    streams.complain(warning);
  const QTemporaryDir folder = makeWorkFolder();
  const bool saved = saveTheme({.themePath = themePath,
                                .edited = theme.values,
                                .shown = shownFor(theme, shown),
                                .xml = xml,
                                .includeIndex = options.includeIndex,
                                .compress = options.compress,
                                .workFolder = folder.path()},
                               [&](const Fault& fault) { streams.complain(fault.description()); });
  if (!saved) return NotDone;
  const CheckedTheme made = checkTheme(themePath);
  const bool isReadable = made.schema != nullptr;
  // What was warned of is found once more in the archive, in other words.
  const bool isTold = isReadable && !warnings.isEmpty();
  tellFindings(isTold ? closeColorFindings(theme.values) + checkPictures(made) : made.findings,
               streams);
  return isReadable ? AllWell : NotDone;
}

}  // namespace quillane
