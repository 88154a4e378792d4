// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmpreferences.h"

#include "forms/formicons.h"
#include "shell/palette.h"
#include "support/controls.h"
#include "support/desktest.h"
#include "support/scripteddialogs.h"
#include "tools/colorpalette.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QToolTip>

namespace quillane {

namespace {

/// Keeps each write as "section/key=value".
class RecordedSettings : public MemorySettings {
 public:
  void write(const Setting& setting, const QString& value) override {
    written << QString("%1/%2=%3").arg(setting.section, setting.key, value);
    MemorySettings::write(setting, value);
  }
  QStringList written;
};

class Preferences : public DeskTest {
 protected:
  Preferences() {
    state.MyThemesFolder = makeFolder("My Themes") + '/';
    state.ConfigFolder2 = makeFolder("2") + '/';
    state.ConfigFolder3G = makeFolder("3G") + '/';
    state.LanguageFile2 = state.LanguageFile3G = "english.lng";
    state.PalettesFolder = path("Palettes/");
    state.QualitiesFile = path("add-in/i_view32.ini");
    state.IViewPresent = true;
  }

  void open() {
    form = std::make_unique<frmPreferences>(
        nullptr, state, store, dialogs, world,
        FileAssociation{[this] { associated << "create"; }, [this] { associated << "remove"; }});
    form->show();
  }
  template <class Control>
  Control& control(const QString& name) {
    return controlOf<Control>(*form, name);
  }
  void click(const QString& button) { control<QAbstractButton>(button).click(); }
  bool enabled(const QString& name) { return control<QWidget>(name).isEnabled(); }
  QString text(const QString& edit) { return control<QLineEdit>(edit).text(); }
  /// What was written since the last time.
  QString written() { return std::exchange(store.written, {}).join('\n'); }

  /// Sets a control as a person would leave it.
  void set(const QString& name, const QString& value) {
    if (auto* edit = form->findChild<QLineEdit*>(name))
      edit->setText(value);
    else if (auto* slider = form->findChild<QSlider*>(name))
      slider->setValue(value.toInt());
    else if (auto* combo = form->findChild<QComboBox*>(name))
      combo->setCurrentIndex(value.toInt());
    else
      control<QAbstractButton>(name).setChecked(value.toInt());
  }

  RecordedSettings store;
  ScriptedDialogs dialogs;
  QStringList associated;
  std::unique_ptr<frmPreferences> form;
};

/// A control, a value that is not the default, and the line that OK writes for both, in order.
struct Line {
  const char* control;
  const char* value;
  const char* standard;
  const char* changed;
};

const Line kLines[] = {
    {"chkIndexFile", "0", "General/IncludeIndexFile=1", "General/IncludeIndexFile=0"},
    {"chkCompressXML", "0", "General/CompressXMLCode=1", "General/CompressXMLCode=0"},
    {"chkDisableSmartLA", "1", "General/SmartLAImage=0", "General/SmartLAImage=1"},
    {"txtDefThmFolder", "/else/", "General/ThemesFolder=%1", "General/ThemesFolder=/else/"},
    {"chkDisableETT", "1", "General/DisableETT=0", "General/DisableETT=1"},
    {"txtETTCreator", "Ada", "General/ETTCreator=", "General/ETTCreator=Ada"},
    {"txtETTModifiedBy", "Bo", "General/ETTModifiedBy=", "General/ETTModifiedBy=Bo"},
    {"txtUserPalette", "/x.pal", "General/UserPalette=", "General/UserPalette=/x.pal"},
    {"cboLanguage_0", "1", "Vistrel2Dynamics/VistrelINIFile=english.lng",
     "Vistrel2Dynamics/VistrelINIFile=b.INI"},
    {"cboLanguage_1", "0", "Vistrel3GDynamics/VistrelINIFile=english.lng",
     "Vistrel3GDynamics/VistrelINIFile=c.ini"},
    {"txtOperatorName", "Net", "General/OperatorName=World", "General/OperatorName=Net"},
    {"optTimeFormat_1", "1", "General/TimeFormat=hh:mm", "General/TimeFormat=hh:mmam/pm"},
    {"chkGPRSIcon", "0", "General/ShowGPRSIcon=1", "General/ShowGPRSIcon=0"},
    {"optRange_0", "1", "General/GPRSRange=1", "General/GPRSRange=0"},
    {"chkActiveSignal", "0", "General/ActiveSignal=1", "General/ActiveSignal=0"},
    {"ctrSignalSlider", "2", "General/SignalStrength=5", "General/SignalStrength=2"},
    {"chkActiveBattery", "0", "General/ActiveBattery=1", "General/ActiveBattery=0"},
    {"ctrBatterySlider", "0", "General/BatteryLevel=10", "General/BatteryLevel=0"},
    {"chkActiveDesktop", "0", "General/ActiveDesktop=1", "General/ActiveDesktop=0"},
    {"ctrDesktopIcon_0", "9", "Vistrel2Dynamics/DesktopIcon=5", "Vistrel2Dynamics/DesktopIcon=9"},
    {"ctrDesktopIcon_1", "12", "Vistrel3GDynamics/DesktopIcon=5",
     "Vistrel3GDynamics/DesktopIcon=12"},
    {"cboDateFormat", "2", "Vistrel3GDynamics/DateFormat=dd-mmm-yy",
     "Vistrel3GDynamics/DateFormat=mm\"/\"dd\"/\"yy"},
};

TEST_F(Preferences, CarryEachSettingThereAndBack) {
  write("2/a.ini", "[FileInfo]\r\nLanguage=Alpha\r\n");
  write("2/b.INI", "[Menu]\r\nPrompt=Tekst:\r\n");
  write("3G/c.ini", "[Menu]\r\nTitles=Samtaler|Genveje\r\n");
  QStringList standard, changed;
  for (const Line& line : kLines) {
    standard << QString(line.standard).replace("%1", state.MyThemesFolder);
    changed << line.changed;
  }
  standard << "Vistrel3GDynamics/DateFormatIndex=0";
  changed << "Vistrel3GDynamics/DateFormatIndex=2";

  open();
  click("btnOK");
  EXPECT_EQ(written(), standard.join('\n'));
  EXPECT_EQ(read("add-in/i_view32.ini"),
            "[JPEG]\r\nSave Quality=90\r\n"
            "[PNG]\r\nCompressionLevel=6\r\n");

  for (const char* button : {"btnCancel", "btnOK"}) {
    EXPECT_TRUE(state.ActiveSignal);
    open();
    set("chkDefThmFolder", "0");
    for (const Line& line : kLines)
      set(line.control, line.value);
    set("ctrJPGSlider", "1");
    set("ctrPNGSlider", "0");
    click(button);
    EXPECT_EQ(written(), button == QString("btnOK") ? changed.join('\n') : "");
  }
  EXPECT_TRUE(!state.IncludeIndexFile && !state.CompressXMLCode && state.SmartLAImage &&
              state.DisableETT && !state.ActiveSignal && !state.ActiveBattery &&
              !state.ActiveDesktop);
  EXPECT_EQ(state.ThemesFolder + state.UserPalette, "/else//x.pal");
  EXPECT_EQ(state.LanguageFile2 + state.LanguageFile3G, "b.INIc.ini");
  for (const clsVistrel* engine : {state.PreviewEngine2.get(), state.EditorEngine2.get()})
    EXPECT_EQ(engine->OperatorName + engine->PromptText, "NetTekst:");
  for (const clsVistrel3G* engine : {state.PreviewEngine3G.get(), state.EditorEngine3G.get()})
    EXPECT_EQ(engine->DateFormat + engine->TitleText, "mm\"/\"dd\"/\"yySamtaler|Genveje");

  open();  // What was written comes back.
  click("btnOK");
  EXPECT_EQ(written(), changed.join('\n'));
  EXPECT_EQ(read("add-in/i_view32.ini"),
            "[JPEG]\r\nSave Quality=1\r\n"
            "[PNG]\r\nCompressionLevel=0\r\n");
  open();
  click("btnDefault");
  click("btnOK");
  standard[8] = changed[8];  // Languages have no default.
  standard[9] = changed[9];
  EXPECT_EQ(written(), standard.join('\n'));
}

TEST_F(Preferences, TakeOddSettings) {
  store.MemorySettings::write(setting::TimeFormat, "h:mm AM/PM");
  store.MemorySettings::write(setting::SignalStrength, "9");
  store.MemorySettings::write(setting::BatteryLevel, "full");
  store.MemorySettings::write(setting::DateFormatIndex3G, "7");
  store.MemorySettings::write(setting::IncludeIndexFile, "-1");
  state.ActiveDesktop = false;
  write("add-in/i_view32.ini", "[JPEG]\r\nSave Quality=0\r\n[Other]\r\nKept=1\r\n");
  dialogs.expectMessage("The setting General/BatteryLevel holds \"full\", which is no number*");
  open();
  EXPECT_FALSE(control<QCheckBox>("chkActiveDesktop").isChecked());
  click("btnOK");
  const QString all = written();
  for (const char* line : {"TimeFormat=hh:mmam/pm", "SignalStrength=5", "BatteryLevel=10",
                           "DateFormatIndex=0", "IncludeIndexFile=1"})
    EXPECT_TRUE(all.contains(line)) << line;
  EXPECT_TRUE(read("add-in/i_view32.ini").startsWith("[JPEG]\r\nSave Quality=90\r\n[Other]"));
}

TEST_F(Preferences, ShowAPageAtATime) {
  for (const bool converts : {true, false}) {
    state.IViewPresent = converts;
    open();
    QApplication::setActiveWindow(form.get());
    QSet<QString> titles;
    for (int page = 0; page < (converts ? 9 : 8); ++page) {
      if (page) QTest::keyClick(form->focusWidget(), Qt::Key_Down);
      titles << control<QLabel>("lblTitle").text();
      EXPECT_EQ(titles.size(), page + 1);
      for (int other = 0; other < 9; ++other)
        EXPECT_EQ(control<QWidget>(QString("picTabs_%1").arg(other)).isVisible(), other == page);
    }
    EXPECT_EQ(control<QWidget>("lblList_8").isVisible(), converts);
  }
}

TEST_F(Preferences, EnableWhatDependsOnABox) {
  const std::tuple<const char*, bool, const char*> cases[] = {
      {"chkDefThmFolder", true, "txtDefThmFolder btnBrowse_0"},
      {"chkDisableETT", true, "txtETTCreator txtETTModifiedBy lblETTCreator lblETTModifiedBy"},
      {"chkGPRSIcon", false, "optRange_0 optRange_1"},
      {"chkActiveSignal", true, "ctrSignalSlider"},
      {"chkActiveBattery", true, "ctrBatterySlider"},
      {"chkActiveDesktop", true, "ctrDesktopIcon_0 ctrDesktopIcon_1"}};
  open();
  for (const auto& [box, offWhenChecked, dependent] : cases)
    for (const bool checked : {true, false, true}) {
      control<QCheckBox>(box).setChecked(checked);
      for (const QString& name : QString(dependent).split(' '))
        EXPECT_EQ(enabled(name), checked != offWhenChecked) << name.toStdString();
    }
}

TEST_F(Preferences, ShowTheIconOfAChoice) {
  const std::tuple<const char*, const char*, const char*, int> cases[] = {
      {"chkActiveSignal", "ctrSignalSlider", "imgSignal", 1200},
      {"chkActiveBattery", "ctrBatterySlider", "imgBattery", 1100},
      {"chkActiveDesktop", "ctrDesktopIcon_0", "imgDesktopIcon_0", 1000},
      {"chkActiveDesktop", "ctrDesktopIcon_1", "imgDesktopIcon_1", 2000}};
  const auto imageOf = [this](const char* label) {
    return control<QLabel>(label).pixmap().toImage();
  };
  open();
  for (const auto& [box, slider, label, first] : cases) {
    EXPECT_TRUE(imageOf(label).isNull()) << label;
    set(box, "0");
    set(slider, "4");
    EXPECT_EQ(imageOf(label), formPixmap(first + 4).toImage()) << label;
    set(box, "1");
  }
  set("optRange_0", "1");
  EXPECT_EQ(imageOf("imgGPRS"), formPixmap(1300).toImage());
  set("chkGPRSIcon", "0");
  EXPECT_TRUE(control<QLabel>("imgGPRS").isHidden());
}

TEST_F(Preferences, ListLanguagesAndDates) {
  write("3G/english.lng", "[FileInfo]\r\nVersion=1.2\r\n");
  write("3G/b.ini", "[FileInfo]\r\nLanguage=Dansk\r\nVersion=3\r\nAuthor=Bo\r\nComment=Hej\r\n");
  write("3G/a.ini", "");
  const auto details = [this] {
    return control<QComboBox>("cboLanguage_1").currentText() + '|' +
           control<QLabel>("lblLngVersion_1").text() + '|' +
           control<QLabel>("lblLngAuthor_1").text() + '|' +
           control<QPlainTextEdit>("txtComment_1").toPlainText();
  };
  open();
  EXPECT_EQ(details(), "|Version: 1.2|Author: unknown|") << "the one in force is not listed";
  set("cboLanguage_1", "1");
  EXPECT_EQ(details(), "Dansk|Version: 3|Author: Bo|Hej");
  set("cboLanguage_1", "0");
  EXPECT_EQ(details(), "unknown|Version: unknown|Author: unknown|");
  QStringList dates;
  for (int i = 0; i < control<QComboBox>("cboDateFormat").count(); ++i)
    dates << control<QComboBox>("cboDateFormat").itemText(i);
  EXPECT_EQ(dates.join(' '), "14-Jun-03 14-06-03 06/14/03 030614 14/06/03 14.06.03 03-06-14");
}

TEST_F(Preferences, ChooseFolderAndTexts) {
  store.MemorySettings::write(setting::ThemesFolder, "/mine/");
  open();
  EXPECT_EQ(text("txtDefThmFolder"), "/mine/");
  for (const auto& [answer, expected] : {std::pair{"/else", "/else/"}, {"/", "/"}, {"", "/"}}) {
    dialogs.expectFolder("Select a folder:", answer);
    click("btnBrowse_0");
    EXPECT_EQ(text("txtDefThmFolder"), expected);
  }
  set("chkDefThmFolder", "1");
  EXPECT_EQ(text("txtDefThmFolder"), state.MyThemesFolder);
  set("chkDefThmFolder", "0");
  EXPECT_EQ(text("txtDefThmFolder"), "/mine/") << "the stored one, not the chosen one";
  set("txtOperatorName", "");
  EXPECT_EQ(text("txtOperatorName"), "World");
  store.MemorySettings::write(setting::ThemesFolder, state.MyThemesFolder.toUpper());
  open();
  EXPECT_TRUE(control<QCheckBox>("chkDefThmFolder").isChecked());
}

TEST_F(Preferences, EditAPalette) {
  const QString file = write("x.pal", "JASC-PAL\r\n0100\r\n2\r\n255 128 64\r\n1 2 3\r\n");
  open();
  click("lblList_3");
  dialogs.expectFile("", file);
  click("btnBrowse_1");
  EXPECT_EQ(text("txtUserPalette"), file);
  EXPECT_EQ(dialogs.lastFile.folder, state.PalettesFolder);
  dialogs.expectFile("", file);
  click("btnOpen");
  auto& palette = control<ColorPalette>("ctrColorPalette");
  const QPoint field = palette.visualRect(palette.model()->index(0, 0)).center();
  QHelpEvent hover(QEvent::ToolTip, field, palette.viewport()->mapToGlobal(field));
  QApplication::sendEvent(palette.viewport(), &hover);
  EXPECT_EQ(QToolTip::text(), "RGB=255,128,64");

  QTimer::singleShot(0, form.get(), [] {
    auto& picker = *QApplication::activeModalWidget();
    controlOf<QLineEdit>(picker, "txtHTML").setFocus();
    controlOf<QLineEdit>(picker, "txtHTML").setText("0A0B0C");
    controlOf<QPushButton>(picker, "btnOK").click();
  });
  QTest::mouseClick(palette.viewport(), Qt::LeftButton, {}, field);
  QTest::mouseDClick(palette.viewport(), Qt::LeftButton, {}, field);
  dialogs.expectFile("", path("y.pal"));
  click("btnSaveAs");
  EXPECT_EQ(read("y.pal"), "JASC-PAL\r\n0100\r\n2\r\n10 11 12\r\n1 2 3\r\n");
  click("btnDefPal");
  EXPECT_EQ(palette.colorAt(255), builtInPalette()[255]);

  dialogs.expectFile("", write("bad.pal", "no palette"));
  dialogs.expectMessage("Invalid palette file.*");
  click("btnOpen");
  dialogs.expectFile("", {});
  click("btnOpen");
}

TEST_F(Preferences, AssociateAtOnce) {
  open();
  dialogs.expectMessage(".thm files are now associated with Quillane.");
  click("btnAssociate_0");
  dialogs.expectMessage(".thm files are no longer associated with Quillane.");
  click("btnAssociate_1");
  click("btnCancel");
  EXPECT_EQ(associated, (QStringList{"create", "remove"}));
}

TEST_F(Preferences, SayWhatCouldNotBeWritten) {
  write("add-in", "a file in the way");
  open();
  dialogs.expectMessage("No permission to make \"" + path("add-in/") + "\"*");
  set("txtOperatorName", "Net");
  click("btnOK");
  EXPECT_EQ(state.PreviewEngine2->OperatorName, "Net");
}

}  // namespace

}  // namespace quillane
