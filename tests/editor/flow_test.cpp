// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmnew.h"
#include "editorfixture.h"
#include "preview/screens.h"

#include <QAccessible>
#include <QSet>
#include <QToolButton>

namespace quillane {

namespace {

class Editor : public EditorTest {
 protected:
  QToolButton& tab(int index) { return control<QToolButton>(QString("btnTabs_%1").arg(index)); }
  int tabCount() const { return static_cast<int>(editorTabs(generation).size()); }
  /// Presses a key where the keyboard's focus is.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  /// The lock of a field as a person sees it: by what typing does, and by its colour.
  bool locked(const QString& name) {
    auto& field = control<QLineEdit>(name);
    const QString before = field.text();
    QTest::keyClick(&field, Qt::Key_X);
    const bool isLocked = field.text() == before;
    field.setText(before);
    const QColor ground = field.palette().color(QPalette::Base);
    EXPECT_EQ(ground, form->palette().color(isLocked ? QPalette::Button : QPalette::Base));
    return isLocked;
  }
};

TEST_F(Editor, TabsShowTheirPanes) {
  for (const Generation which : kBoth) {
    openNew(which);
    QSet<QString> seen;
    for (int at = 0; at < tabCount(); ++at) {
      QTest::mouseClick(&tab(at), Qt::LeftButton);
      QSet<QString> panes;
      for (const PictureBox* box : form->findChildren<PictureBox*>())
        if (box->isVisible()) panes << box->objectName();
      const QStringList expected = editorTabs(which)[at].panes;
      EXPECT_EQ(panes, QSet<QString>(expected.begin(), expected.end()));
      seen += panes;
    }
    // In 3G two windows stand behind a switch.
    EXPECT_EQ(static_cast<std::size_t>(seen.size()),
              which == Generation::Two ? screensOfGeneration2().size() : screensOf3G().size() - 2);
  }
  // The switch brings them to the front.
  const auto popups = [this] {
    return std::pair(control<PictureBox>("picPopupMenu_0").surface().image().copy(),
                     control<PictureBox>("picPopupMenu_1").surface().image().copy());
  };
  const auto before = popups();
  click("btnMore");
  EXPECT_NE(popups().first, before.first);
  EXPECT_NE(popups().second, before.second);
  click("btnMore");
  EXPECT_EQ(popups(), before);
}

TEST_F(Editor, BeginsANewThemeWithDefaults) {
  settings.write(setting::ETTCreator, "Ann");
  settings.write(setting::ETTModifiedBy, "Ben");
  for (const Generation which : kBoth) {
    generation = which;
    state.IViewPresent = which == Generation::ThreeG;
    // Whatever the last edit left.
    engine().setColor(0, "112233");
    engine().setImage(0, "/old.gif");
    state.EditorEngine2->StandbyType = 1;
    open(false);
    EXPECT_EQ(caption(), "Theme Editor [New Theme]");
    EXPECT_EQ(
        text("txtThemeName") + '|' + text("txtThemeAuthor") + '|' + text("txtThemeModifiedBy"),
        "|Ann|");
    EXPECT_FALSE(source().contains("Ann")) << "the source is older than the author";
    EXPECT_EQ(contentOf(engine().values()), contentOf(ThemeValues(which)));
    EXPECT_EQ(state.EditorEngine2->StandbyType, which == Generation::Two ? 0 : 1);
    EXPECT_EQ(originButtons(), "Reset Import Paste");
    EXPECT_EQ(enabled("btnImageWizard"), state.IViewPresent);
    EXPECT_FALSE(locked("txtThemeName"));
    EXPECT_FALSE(locked("txtThemeAuthor"));
    EXPECT_TRUE(locked("txtThemeModifiedBy"));
  }
}

TEST_F(Editor, OpensTheThemeOnShow) {
  settings.write(setting::ETTCreator, "Ann");
  settings.write(setting::ETTModifiedBy, "Ben");
  const QByteArray tags =
      "<!--<Theme_name Name=\"N\"/><Theme_creator Name=\"C\"/><Theme_modified_by Name=\"M\"/>"
      "<Theme_created Time=\"1.2.2003 4:05\"/>-->";
  const std::pair<QByteArray, const char*> cases[] = {
      {tags, "N|C|M|1.2.2003 4:05|9.8.2004 07:06"},
      {"", "||Ben|9.8.2004 07:06|"},
      {"<!--<Theme_creator Name=\"C\"/>-->", "|C|Ben|9.8.2004 07:06|"}};
  for (const Generation which : kBoth)
    for (const auto& [elements, expected] : cases) {
      const bool is2 = which == Generation::Two;
      const QByteArray image = is2 ? "Background_image" : "Wallpaper_image";
      const QByteArray missing = is2 ? "Title_image_small" : "Title_image";
      showTheme(which, "a[*]&b.thm",
                elements + "<Text Color=\"0x7F0102\"/><" + image + " Source=\"w.gif\"/><" +
                    missing + " Source=\"gone.gif\"/>",
                {{"w.gif", is2 ? QSize(101, 80) : QSize(128, 127)}});
      QFile xml(state.ThemeXmlPath);
      ASSERT_TRUE(xml.open(QIODevice::ReadWrite) &&
                  xml.setFileTime(QDateTime({2004, 8, 9}, {7, 6}), QFile::FileModificationTime));
      open(true);
      EXPECT_EQ(caption().replace("[*][*]", "[*]"),
                "Theme Editor [" + path("themes/a[*]&b.thm") + ']');
      EXPECT_EQ(
          (QStringList{text("txtThemeName"), text("txtThemeAuthor"), text("txtThemeModifiedBy"),
                       label("lblThemeCreated"), label("lblThemeModified")})
              .join('|'),
          expected);
      EXPECT_EQ(text("txtTextClr"), "7F0102");
      EXPECT_EQ(slotFiles(), is2 ? "0w" : "1w");
      EXPECT_EQ(source(), QString(state.ThemeXml).remove('\r'));
      EXPECT_EQ(state.EditorEngine2->StandbyType, 1);
      EXPECT_EQ(originButtons(), "Revert");
    }
}

TEST_F(Editor, UnlocksItsFields) {
  showTheme(Generation::Two, "a.thm", {});
  open(true);
  EXPECT_FALSE(locked("txtThemeModifiedBy"));
  for (const char* field : {"Name", "Author"}) {
    click(QString("lblTheme%1").arg(field));
    EXPECT_TRUE(locked(QString("txtTheme%1").arg(field))) << "without Ctrl";
  }
  QTest::keyPress(form.get(), Qt::Key_Control);
  click("lblThemeName");
  QTest::keyRelease(form.get(), Qt::Key_Control, Qt::ControlModifier);
  EXPECT_FALSE(locked("txtThemeName"));
  EXPECT_TRUE(locked("txtThemeAuthor"));
  control<QLineEdit>("txtThemeAuthor").setFocus();
  press(Qt::Key_F2);
  EXPECT_FALSE(locked("txtThemeAuthor"));
}

TEST_F(Editor, HidesTheTagsThatAreNotWritten) {
  state.DisableETT = true;
  settings.write(setting::ETTCreator, "Ann");
  for (const auto& [which, information] :
       {std::pair{Generation::Two, 7}, {Generation::ThreeG, 9}}) {
    openNew(which);
    EXPECT_FALSE(tab(information).isVisible());
    EXPECT_EQ(text("txtThemeAuthor"), "Ann");
    EXPECT_FALSE(source().contains("Ann"));
    // The keyboard steps over it, either way and around.
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_PageUp}) {
      for (int step = 1; step < tabCount(); ++step) {
        press(key, Qt::ControlModifier);
        EXPECT_FALSE(tab(information).isChecked());
        EXPECT_TRUE(QApplication::focusWidget()->isVisible());
      }
      EXPECT_TRUE(tab(0).isChecked());
    }
  }
}

TEST_F(Editor, IsReachedWithTheKeyboard) {
  for (const Generation which : kBoth) {
    openNew(which);
    for (int at = 0; at < tabCount(); ++at) {
      QTest::mouseClick(&tab(at), Qt::LeftButton);
      QMap<QString, QString> letters;
      for (QWidget* widget : form->findChildren<QWidget*>()) {
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        const auto* caption = qobject_cast<QLabel*>(widget);
        if (!widget->isVisible() || (!button && !(caption && caption->buddy()))) continue;
        const QKeySequence key = QKeySequence::mnemonic(button ? button->text() : caption->text());
        if (key.isEmpty()) continue;
        EXPECT_EQ(letters.value(key.toString()), "") << widget->objectName().toStdString();
        letters[key.toString()] = widget->objectName();
      }
      QWidget* const first = QApplication::focusWidget();
      QStringList swatches;
      do {
        QWidget* const stop = QApplication::focusWidget();
        EXPECT_TRUE(stop->isVisible());
        EXPECT_NE(QAccessible::queryAccessibleInterface(stop)->text(QAccessible::Name), "")
            << stop->objectName().toStdString();
        if (qobject_cast<ColorField*>(stop)) swatches << stop->objectName();
        press(Qt::Key_Tab);
      } while (QApplication::focusWidget() != first);
      QStringList expected;
      const EditorTab its = editorTabs(which)[at];
      for (const ColorSlot& slot : its.colorSlots)
        expected << "lbl" + slot.stem + "Clr";
      EXPECT_EQ(swatches, expected);
    }
  }
}

TEST_F(Editor, ActsOnKeysAlone) {
  openNew(Generation::ThreeG);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "btnTabs_0");
  control<ColorField>("lblTimeClr").setFocus();
  dialogs.expectColor("103F68", "00FF00");
  press(Qt::Key_Return);
  EXPECT_EQ(text("txtTimeClr"), "00FF00");
  press(Qt::Key_Escape);
  EXPECT_TRUE(form->isVisible()) << "nothing is thrown away";
  dialogs.expectFile("Save theme file", {});
  press(Qt::Key_S, Qt::ControlModifier);
  press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_FALSE(form->isVisible());
}

TEST_F(Editor, IsOpenedForTheKindOfTheme) {
  QStringList seen;
  const auto closeEditor = [&] {
    auto* const editor = qobject_cast<EditorForm*>(QApplication::activeModalWidget());
    ASSERT_TRUE(editor);
    seen << QString("%1 %2").arg(editor->metaObject()->className()).arg(editor->windowTitle());
    editor->close();
  };
  for (const char* button : {"btnNew_0", "btnNew_1", "btnNew_2", "btnCancel"}) {
    QTimer::singleShot(0, [&, button] {
      QWidget* const question = QApplication::activeModalWidget();
      ASSERT_TRUE(question);
      if (button != QString("btnCancel")) QTimer::singleShot(0, closeEditor);
      controlOf<QAbstractButton>(*question, button).click();
    });
    makeTheme(nullptr, desk);
  }
  for (const Generation which : kBoth) {
    showTheme(which, "a.thm", {});
    QTimer::singleShot(0, closeEditor);
    editTheme(nullptr, desk);
  }
  const QString begun = " Theme Editor [New Theme]";
  const QString opened = " Theme Editor [" + path("themes/a.thm") + ']';
  EXPECT_EQ(seen, QStringList({"quillane::frmEditor" + begun, "quillane::frmEditor" + begun,
                               "quillane::frmEditor2" + begun, "quillane::frmEditor" + opened,
                               "quillane::frmEditor2" + opened}));
}

}  // namespace

}  // namespace quillane
