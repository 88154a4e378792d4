// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editorfixture.h"

#include <QClipboard>
#include <QSet>
#include <QToolButton>

namespace quillane {

namespace {

class EditorColors : public EditorTest {
 protected:
  /// The stems that show a colour; one whose swatch, text box and engine disagree has a "!".
  QString holders(const QString& rgb) {
    QStringList stems;
    for (const ColorSlot& slot : colorSlots()) {
      const bool swatch =
          control<ColorField>("lbl" + slot.stem + "Clr").color() == colorValueOf(rgb);
      const bool box = text("txt" + slot.stem + "Clr") == rgb;
      const bool inEngine = engine().color(slot.color) == rgb;
      if (swatch || box || inEngine) stems << slot.stem + (swatch && box && inEngine ? "" : "!");
    }
    stems.sort();
    return stems.join(' ');
  }
  /// What the panes of a slot's tab show.
  QList<QImage> panesOf(const ColorSlot& slot) {
    QList<QImage> shown;
    for (const EditorTab& tab : editorTabs(generation))
      for (const ColorSlot& its : tab.colorSlots)
        for (const QString& pane : its.stem == slot.stem ? tab.panes : QStringList())
          shown << control<PictureBox>(pane).surface().image().copy();
    return shown;
  }
  /// "marked slots|marked tabs|" and whether one may save.
  QString warnings() {
    QStringList stems, tabs;
    for (const ColorSlot& slot : colorSlots())
      if (!control<QLabel>("picWarning" + slot.stem).pixmap().isNull()) stems << slot.stem;
    for (int tab = 0; tab < editorTabs(generation).size(); ++tab) {
      auto& button = control<QToolButton>(QString("btnTabs_%1").arg(tab));
      if (!button.toolTip().isEmpty()) tabs << button.text();
    }
    EXPECT_EQ(enabled("btnSave_0"), enabled("btnSave_1"));
    return stems.join(' ') + '|' + tabs.join(' ') + '|' +
           (enabled("btnSave_0") ? "free" : "blocked");
  }
};

/// The engine's name for a slot's colour.
QString propertyOf(QString stem, Generation generation) {
  const QMap<QString, QString> odd{{"OperatorName", "StandbyOperatorName"},
                                   {"OperatorNameOut", "StandbyOperatorNameOutline"},
                                   {"Time", "StandbyTime"},
                                   {"TimeOut", "StandbyTimeOutline"},
                                   {"DesktopBack", "DesktopBackground"},
                                   {"DesktopTitleOut", "DesktopTitleOutline"}};
  stem = odd.value(stem, stem);
  if (generation == Generation::ThreeG && stem.startsWith("Popup"))
    stem = (stem == "PopupFrame" || stem == "PopupShadow" ? "MoreList" : "MoreList~") + stem;
  return stem.remove("~Popup") + "Color";
}

TEST_F(EditorColors, EverySchemaColorHasItsSlot) {
  for (const Generation which : kBoth) {
    generation = which;
    QSet<QString> properties, names;
    for (const ColorSlot& slot : colorSlots()) {
      const auto& color = schemaOf(which).colors[static_cast<std::size_t>(slot.color)];
      EXPECT_EQ(QString(color.property), propertyOf(slot.stem, which));
      properties << color.property;
    }
    EXPECT_EQ(static_cast<std::size_t>(properties.size()), schemaOf(which).colors.size());
    EXPECT_EQ(colorSlots().size(), properties.size());
    for (const EditorTab& tab : editorTabs(which))
      for (const ColorSlot& slot : tab.colorSlots)
        names << tab.caption + slot.group + slot.caption;
    EXPECT_EQ(names.size(), properties.size()) << "two slots look the same";
  }
}

// Each slot gets a colour of its own, so that whoever follows shows.
TEST_F(EditorColors, TakeAColorWithTheirFollowers) {
  const QMap<QString, QString> both{{"Highlight", "CalendarWeekendHighlight"},
                                    {"HighlightText", "CalendarWeekendHighlightText"},
                                    {"OperatorName", "Time"},
                                    {"OperatorNameOut", "TimeOut"},
                                    {"PopupBackground", "NotesBackground"},
                                    {"PopupPrompt", "PopupCursor"},
                                    {"PopupText", "NotesText PopupCursor PopupPrompt"},
                                    {"Prompt", "Cursor"}};
  QMap<QString, QString> of2 = both, of3G = both;
  of2.insert({{"Text", "CalendarWeekendText Cursor Prompt"}});
  of3G.insert({{"SoftkeysBackground", "SoftkeysDisabledTextShadow SoftkeysTextShadow"},
               {"SoftkeysTextShadow", "SoftkeysDisabledTextShadow"},
               {"WapbrowserUnderline", "WapbrowserTableborder"}});
  // No screen of 3G has a line to write in.
  const QStringList unpainted3G{"Prompt", "Cursor", "PopupPrompt", "PopupCursor"};
  for (const Generation which : kBoth) {
    openNew(which);
    // Outlines show over a background only.
    state.EditorEngine2->StandbyType = 1;
    int number = 0;
    for (const ColorSlot& slot : colorSlots()) {
      const QString followers = (which == Generation::Two ? of2 : of3G).value(slot.stem);
      QStringList expected = followers.split(' ', Qt::SkipEmptyParts) << slot.stem;
      expected.sort();
      const bool needsMore = slot.stem == "PopupTextShadow";
      if (needsMore) click("btnMore");
      const QList<QImage> before = panesOf(slot);
      const QString rgb = QString("4%1E").arg(++number, 4, 16, QChar('0')).toUpper();
      pick(slot.stem, rgb);
      EXPECT_EQ(holders(rgb), expected.join(' '));
      const bool isPainted = which == Generation::Two || !unpainted3G.contains(slot.stem);
      EXPECT_EQ(panesOf(slot) != before, isPainted) << slot.stem.toStdString();
      if (needsMore) click("btnMore");
      pick(slot.stem, {});
      EXPECT_EQ(holders(rgb), expected.join(' ')) << "cancelled";
      QTest::keyPress(form.get(), Qt::Key_Control);
      const QString alone = QString(rgb).replace(0, 1, "8");
      pick(slot.stem, alone);
      EXPECT_EQ(holders(alone), slot.stem) << "with Ctrl";
      // Of a key released over a dialog nothing is heard; slots with followers forget it.
      if (followers.isEmpty()) QTest::keyRelease(form.get(), Qt::Key_Control, Qt::ControlModifier);
    }
  }
}

TEST_F(EditorColors, MarkWhatCannotBeReadAndBlockSaving) {
  struct Step {
    const char *stem, *rgb, *expected;
  };
  const QList<Step> steps[] = {
      {{"OperatorNameOut", "FFFFDF", "||free"},
       {"Text", "FFFFE0", "Background Text Prompt|Menus|blocked"},
       {"Prompt", "FFFFDF", "Background Text|Menus|blocked"},
       {"PopupText", "34D2CC",
        "Background Text PopupBackground PopupText PopupPrompt|Menus Popups|blocked"},
       {"PopupBackground", "000000", "Background Text|Menus|blocked"},
       {"Background", "000000", "||free"},
       {"DesktopTitle", "FFFFFF", "DesktopBack DesktopTitle DesktopTitleOut|Desktop|blocked"}},
      {{"OperatorNameOut", "103F7B", "OperatorName OperatorNameOut|Standby|blocked"},
       {"OperatorNameOut", "103F7C", "||free"},
       {"Text", "C0DFFF", "Background Text|Menus|blocked"},
       {"Prompt", "C0DFFF", "Background Text Prompt|Menus|blocked"},
       {"Text", "000000", "Background Prompt|Menus|blocked"}}};
  for (const Generation which : kBoth) {
    openNew(which);
    const QString tip = control<QWidget>("btnSave_1").toolTip();
    for (const auto& [stem, rgb, expected] : steps[which == Generation::Two ? 0 : 1]) {
      pick(stem, rgb);
      EXPECT_EQ(warnings(), QString(expected)) << stem << ' ' << rgb;
      EXPECT_EQ(control<QWidget>("btnSave_1").toolTip() == tip, enabled("btnSave_1"));
    }
    QTest::keyClick(form.get(), Qt::Key_S, Qt::ControlModifier);  // No dialog.
    click("btnReset");
    EXPECT_EQ(warnings(), "||free");
  }
}

TEST_F(EditorColors, AreCheckedWhenAThemeComesIn) {
  const char* const blocked = "Highlight HighlightText|Menus|blocked";
  for (const Generation which : kBoth) {
    QByteArray elements = "<Highlight Color=\"0xFFFFFF\"/>";  // The first of two counts.
    for (const ColorElement& color : schemaOf(which).colors)
      elements += QString("<%1 Color=\"0x%2\"/>").arg(color.element, color.standard).toLatin1();
    showTheme(which, "a.thm", elements);
    open(true);
    EXPECT_EQ(warnings(), blocked);
    pick("Highlight", "000000");
    EXPECT_EQ(warnings(), "||free");
    click("btnRevert");
    EXPECT_EQ(warnings(), blocked);
    openNew(which);
    EXPECT_EQ(warnings(), "||free");
    QApplication::clipboard()->setText(state.ThemeXml);
    click("btnPaste");
    EXPECT_EQ(warnings(), blocked);
  }
}

}  // namespace

}  // namespace quillane
