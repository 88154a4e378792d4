// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmclrpicker.h"

#include "forms/colorfield.h"
#include "shell/palette.h"
#include "shell/settings.h"
#include "shell/state.h"
#include "support/controls.h"
#include "support/scripteddialogs.h"
#include "support/tempfolder.h"
#include "tools/colorpalette.h"
#include "tools/palettemodel.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <functional>

namespace quillane {

namespace {

class ColorPicker : public TempFolder {
 protected:
  void open() {
    form = std::make_unique<frmClrPicker>(state, dialogs);
    form->show();
    QApplication::processEvents();
  }

  template <class Control>
  Control& control(const QString& name) {
    return controlOf<Control>(*form, name);
  }
  void click(const char* name) {
    QTest::mouseClick(&control<QWidget>(name), Qt::LeftButton);
    QApplication::processEvents();
  }
  /// Types over the text of a box, as after a click into it.
  void type(const char* box, const QString& keys) {
    palette().setFocus();
    click(box);
    QTest::keyClicks(&control<QLineEdit>(box), keys);
  }
  ColorPalette& palette() { return control<ColorPalette>("ctrColorPalette"); }
  void clickField(int column, int row) {
    const QRect field = palette().visualRect(palette().model()->index(row, column));
    QTest::mouseClick(palette().viewport(), Qt::LeftButton, {}, field.center());
  }

  /// The colour that a field shows, as it was painted.
  QString fieldColor(const char* name) {
    const QImage pixels = control<ColorField>(name).grab().toImage();
    return pixels.pixelColor(pixels.rect().center()).name().mid(1).toUpper();
  }
  /// All that shows the working colour: "texts|bars|HTML|new colour".
  QString shown() {
    QStringList texts, bars;
    for (const char* part : {"Red", "Green", "Blue"}) {
      texts << control<QLineEdit>(QString("txt") + part).text();
      bars << QString::number(control<QScrollBar>(QString("vsb") + part).value());
    }
    return texts.join(' ') + '|' + bars.join(' ') + '|' + control<QLineEdit>("txtHTML").text() +
           '|' + fieldColor("lblNewColor");
  }
  QAction& item(int number) { return control<QAction>(QString("mnuPopupSub_%1").arg(number)); }
  /// The palette's length and the checked menu items, as in "256 1" or "2 -".
  QString paletteShown() {
    const auto& model = static_cast<const PaletteModel&>(*palette().model());
    QString marks;
    for (const int number : {1, 2})
      if (item(number).isChecked()) marks += QString::number(number);
    return QString("%1 %2").arg(model.colors().size()).arg(marks.isEmpty() ? "-" : marks);
  }

  PublicState state;
  ScriptedDialogs dialogs;
  std::unique_ptr<frmClrPicker> form;
};

const QString kOrange = "255 128 64|255 128 64|FF8040|FF8040";
const QByteArray kTwoColors = "JASC-PAL\n0100\n2\n255 128 64\n1 2 3\n";

TEST_F(ColorPicker, FollowsWhatIsTyped) {
  const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
      {"more than 255", "txtRed", "300", "255 96 144|255 96 144|FF6090|FF6090"},
      {"a digit too many", "txtGreen", "1234", "48 123 144|48 123 144|307B90|307B90"},
      {"cleared", "txtBlue", "\b", "48 96 0|48 96 0|306000|306000"},
      {"cleared and typed", "txtBlue", "\b7", "48 96 7|48 96 7|306007|306007"},
      {"keys that are no digits", "txtRed", "a1-. 2", "12 96 144|12 96 144|0C6090|0C6090"},

      {"HTML, one digit", "txtHTML", "F", "240 0 0|240 0 0|F|F00000"},
      {"HTML, five", "txtHTML", "ff814", "255 129 64|255 129 64|FF814|FF8140"},
      {"HTML, seven", "txtHTML", "ff81427", "255 129 66|255 129 66|FF8142|FF8142"},
      {"HTML, keys that are no digits", "txtHTML", "gf #zf", "255 0 0|255 0 0|FF|FF0000"},
      {"HTML, taken back", "txtHTML", "ff8\b", "255 0 0|255 0 0|FF|FF0000"},
      {"HTML, cleared", "txtHTML", "\b", "0 0 0|0 0 0|000000|000000"}};
  for (const auto& [name, box, keys, expected] : cases) {
    open();
    type("txtHTML", "306090");
    ASSERT_EQ(shown(), "48 96 144|48 96 144|306090|306090");
    type(box, keys);
    EXPECT_EQ(shown(), expected) << name;
    EXPECT_EQ(control<QLineEdit>(box).cursorPosition(), control<QLineEdit>(box).text().size())
        << name;
  }
}

TEST_F(ColorPicker, TakesPastedTextsThatFit) {
  const QKeySequence paste(Qt::CTRL | Qt::Key_V);
  open();
  const std::tuple<const char*, const char*, bool, const char*> cases[] = {
      {"txtHTML", "ff8040", true, "FF8040"}, {"txtHTML", " #12ab34\n", true, "12AB34"},
      {"txtHTML", "purple", true, "12AB34"}, {"txtHTML", "ff8040ff", true, "12AB34"},
      {"txtRed", "99", true, "18"},          {"txtRed", "99", false, "99"},
      {"txtRed", "-5", false, "99"},         {"txtRed", "1.5", false, "99"}};
  for (const auto& [box, text, withKeys, expected] : cases) {
    QApplication::clipboard()->setText(text);
    palette().setFocus();
    click(box);
    auto& edit = control<QLineEdit>(box);
    if (withKeys)
      QTest::keySequence(&edit, paste);
    else
      edit.paste();
    EXPECT_EQ(edit.text(), expected) << text;
  }
}

TEST_F(ColorPicker, BarsRiseTowardsTheirTop) {
  open();
  type("txtHTML", "306090");
  auto& bar = control<QScrollBar>("vsbRed");
  const auto expectRed = [this](int value) {
    const QString html = QString("%1").arg(value, 2, 16).toUpper() + "6090";
    EXPECT_EQ(shown(), QString("%1 96 144|%1 96 144|%2|%2").arg(value).arg(html));
  };
  for (const auto& [y, value] : {std::pair{3, 49}, {bar.height() - 4, 48}, {24, 58}}) {
    QTest::mouseClick(&bar, Qt::LeftButton, {}, {8, y});
    expectRed(value);
  }
  for (const auto& [key, value] :
       {std::pair{Qt::Key_Up, 59}, {Qt::Key_PageUp, 69}, {Qt::Key_PageDown, 59}}) {
    QTest::keyClick(&bar, key);
    expectRed(value);
  }
  bar.setValue(255);
  expectRed(255);
}

TEST_F(ColorPicker, TakesTheOldColorOverOnAClick) {
  state.PickerColorIn = 0x4080FF;
  open();
  EXPECT_EQ(fieldColor("lblOldColor"), "FF8040");
  EXPECT_EQ(shown(), "0 0 0|0 0 0|000000|000000");
  // After typing in either kind of box, and with the keys.
  for (const char* box : {"txtRed", "txtHTML"}) {
    type(box, "1");
    click("lblOldColor");
    EXPECT_EQ(shown(), kOrange) << box;
  }
  type("txtHTML", "a");
  QTest::keyClick(&control<QWidget>("lblOldColor"), Qt::Key_Space);
  EXPECT_EQ(shown(), kOrange);
}

TEST_F(ColorPicker, PicksFromThePaletteWithMouseAndKeys) {
  open();
  type("txtHTML", "1");
  clickField(4, 5);
  EXPECT_EQ(shown(), "255 191 0|255 191 0|FFBF00|FFBF00");

  ColorPalette colors;
  colors.load(write("five.pal", "JASC-PAL\n0100\n5\n0 0 0\n1 1 1\n2 2 2\n3 3 3\n4 4 4\n"));
  QList<int> clicked;
  QObject::connect(&colors, &ColorPalette::Click, &colors,
                   [&] { clicked << colors.selectedIndex(); });
  colors.show();
  colors.setFocus();
  QTest::keyClick(&colors, Qt::Key_Space);
  EXPECT_TRUE(clicked.isEmpty()) << "there is nothing to click yet";
  const std::pair<Qt::Key, int> moves[] = {{Qt::Key_End, 4},  {Qt::Key_Right, 4},
                                           {Qt::Key_Up, 0},   {Qt::Key_Right, 1},
                                           {Qt::Key_Down, 1}, {Qt::Key_Home, 0}};
  for (const auto& [key, index] : moves) {
    QTest::keyClick(&colors, key);
    EXPECT_EQ(colors.selectedIndex(), index) << key;
  }
  QTest::keyClick(&colors, Qt::Key_Right);
  QTest::keyClick(&colors, Qt::Key_Return);
  const auto clickAt = [&](int column, int row, Qt::KeyboardModifier modifier) {
    QTest::mouseClick(colors.viewport(), Qt::LeftButton, modifier,
                      {36 + 72 * column, 36 + 72 * row});
  };
  clickAt(3, 0, Qt::NoModifier);
  clickAt(3, 0, Qt::ControlModifier);
  clickAt(1, 1, Qt::NoModifier);
  EXPECT_EQ(clicked, (QList<int>{1, 3, 3})) << "behind the last colour is nothing to click";
  EXPECT_EQ(colors.colorAt(1), 0x010101u);
  EXPECT_EQ(colors.model()->index(1, 0).data(Qt::ToolTipRole), "040404");
}

TEST_F(ColorPicker, PaintsEachColorInItsField) {
  open();
  const QImage seen = palette().viewport()->grab().toImage();
  for (int place = 0; place < 256; ++place)
    EXPECT_EQ(seen.pixelColor(place % 16 * 18 + 9, place / 16 * 18 + 9).name().mid(1).toUpper(),
              ColorToHtml(QString::number(builtInPalette()[static_cast<std::size_t>(place)])))
        << place;
}

TEST_F(ColorPicker, SwitchesPalettesInItsMenu) {
  open();
  EXPECT_FALSE(item(2).isEnabled()) << "there is no user palette";
  state.UserPalette = path("mine.pal");
  open();
  const std::tuple<QByteArray, const char*, const char*> cases[] = {
      {kTwoColors, "", "2 2"},
      {"JASC-PAL\n0100\n0\n", "Invalid color count in palette file.", "2 2"},
      {{}, "User defined color palette not found.", "256 1"},
      {"no palette", "Invalid palette file.", "256 1"},
      {kTwoColors, "", "2 2"}};
  for (const auto& [bytes, message, shownThen] : cases) {
    QFile::remove(state.UserPalette);
    if (!bytes.isEmpty()) write("mine.pal", bytes);
    if (*message) dialogs.expectMessage(message);
    item(2).trigger();
    EXPECT_EQ(paletteShown(), shownThen) << message;
  }
  item(1).trigger();
  EXPECT_EQ(paletteShown(), "256 1");
}

TEST_F(ColorPicker, OpensPaletteFiles) {
  state.PalettesFolder = path() + '/';
  open();
  const QString title = "Open color palette";
  const std::pair<QString, QString> bad[] = {
      {write("a.pal", "no palette"), "Invalid palette file."},
      {path("gone.pal"), "File \"" + path("gone.pal") +
                             "\" not found.\r\nin Quillane.frmClrPicker.btnOpen_Click at line *"}};
  for (const auto& [file, message] : bad) {
    dialogs.expectFile(title, file);
    dialogs.expectMessage(message);
    click("btnOpen");
  }
  dialogs.expectFile(title, {});
  click("btnOpen");
  EXPECT_EQ(paletteShown(), "256 1");

  dialogs.expectFile(title, write("d.pal", kTwoColors));
  click("btnOpen");
  EXPECT_EQ(paletteShown(), "2 -");
  EXPECT_EQ(dialogs.lastFile.folder, state.PalettesFolder);
  clickField(0, 0);
  EXPECT_EQ(shown(), kOrange);
}

TEST_F(ColorPicker, AsksTheSystem) {
  open();
  type("txtHTML", "306090");
  dialogs.expectColor("306090", {});
  click("btnWinCrlPicker");
  EXPECT_EQ(fieldColor("lblNewColor"), "306090") << "cancelled";
  // Whichever side is in charge, even with a text that is not complete.
  for (const char* box : {"txtHTML", "txtRed"}) {
    type(box, "1");
    dialogs.expectColor(fieldColor("lblNewColor"), "FF8040");
    click("btnWinCrlPicker");
    EXPECT_EQ(shown(), kOrange) << box;
    EXPECT_EQ(dialogs.customColors, CustomColors{});
  }
}

TEST_F(ColorPicker, IsReachedWithTheKeyboard) {
  state.UserPalette = "x";
  open();
  palette().setFocus();
  QStringList walked;
  do {
    QWidget* const control = form->focusWidget();
    walked << control->objectName();
    auto* const spoken = QAccessible::queryAccessibleInterface(control);
    EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << walked.last().toStdString();
    QTest::keyClick(control, Qt::Key_Tab);
  } while (form->focusWidget() != &palette() && walked.size() < 30);
  EXPECT_EQ(walked.join(' '),
            "ctrColorPalette btnPalette btnOpen btnWinCrlPicker lblOldColor txtRed vsbRed txtGreen "
            "vsbGreen txtBlue vsbBlue txtHTML btnOK btnCancel");
}

class ColorPickerInUse : public ColorPicker {
 protected:
  /// Shows the picker and, while it is shown, lets somebody act on it.
  bool use(const std::function<void(QDialog&)>& act, QWidget& owner) {
    QTimer::singleShot(0, [&act] {
      auto* picker = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(picker);
      act(*picker);
      EXPECT_FALSE(picker->isVisible());
      picker->close();
    });
    return pickColor(&owner, state, dialogs);
  }
  static void press(QDialog& picker, const char* button) {
    QTest::mouseClick(picker.findChild<QPushButton*>(button), Qt::LeftButton);
  }
};

TEST_F(ColorPickerInUse, AnswersAndKeepsItsColor) {
  const std::tuple<const char*, std::function<void(QDialog&)>, int> cases[] = {
      {"OK at once", [](QDialog& picker) { press(picker, "btnOK"); }, 0},
      {"OK with a colour",
       [](QDialog& picker) {
         auto* html = picker.findChild<QLineEdit*>("txtHTML");
         html->setFocus();
         html->selectAll();
         QTest::keyClicks(html, "ff8040");
         press(picker, "btnOK");
       },
       0x4080FF},
      {"cancelled", [](QDialog& picker) { press(picker, "btnCancel"); }, -1},
      {"escaped", [](QDialog& picker) { QTest::keyClick(&picker, Qt::Key_Escape); }, -1},
      {"OK for the colour of the last use",
       [](QDialog& picker) {
         EXPECT_EQ(picker.findChild<ColorField*>("lblOldColor")->color(), 0x0C0B0Au);
         QTest::keyClick(picker.findChild<QLineEdit*>("txtRed"), Qt::Key_Return);
       },
       0x4080FF}};
  state.PickerColorIn = 0x0C0B0A;
  for (const auto& [name, act, answer] : cases) {
    // Owners come and go.
    QWidget owner;
    owner.show();
    EXPECT_EQ(use(act, owner), answer >= 0) << name;
    EXPECT_EQ(state.PickerColorOut, answer) << name;
  }
}

/// Somebody who keeps one of the sixteen colours whenever the system's dialog is shown.
class KeepingDialogs : public ScriptedDialogs {
 public:
  std::optional<ColorValue> chooseColor(QWidget* owner, ColorValue initial,
                                        CustomColors& custom) override {
    const auto answer = ScriptedDialogs::chooseColor(owner, initial, custom);
    custom[15] = 0xFFFFFF;
    return answer;
  }
};

TEST_F(ColorPickerInUse, SystemsDialogKeepsItsCustomColors) {
  struct Case {
    const char *name, *stored, *answer;
    bool picked;
    std::int32_t out;
    const char* storedThen;
  };
  const Case cases[] = {
      {"another colour", "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16", "FF8040", true, 0x4080FF,
       "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16777215"},
      {"the same colour", "16777215,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0", "306090", false, 0x906030,
       "16777215,0,0,0,0,0,0,0,0,0,0,0,0,0,0,16777215"},
      {"cancelled", "7", "", false, 0x906030, "7,0,0,0,0,0,0,0,0,0,0,0,0,0,0,16777215"},
      {"damaged settings", "1, x,-3,99999999999,5,6,7,8,9,10,11,12,13,14,15,16,17", "", false,
       0x906030, "1,0,0,0,5,6,7,8,9,10,11,12,13,14,15,16777215"}};
  state.PickerColorIn = 0x906030;
  for (const Case& row : cases) {
    KeepingDialogs system;
    MemorySettings settings;
    settings.write(setting::CustomColors, row.stored);
    system.expectColor("306090", row.answer);
    EXPECT_EQ(pickSystemColor(nullptr, state, settings, system), row.picked) << row.name;
    EXPECT_EQ(state.PickerColorOut, row.out) << row.name;
    EXPECT_EQ(settings.read(setting::CustomColors), row.storedThen) << row.name;
  }
}

}  // namespace

}  // namespace quillane
