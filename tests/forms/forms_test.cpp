// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/balloon.h"
#include "forms/bevel.h"
#include "forms/ctooltips.h"
#include "forms/eventprocedure.h"
#include "forms/filelistbox.h"
#include "forms/frmabout.h"
#include "forms/imagebox.h"
#include "forms/picturebox.h"
#include "preview/modapigraphics.h"
#include "support/probes.h"
#include "support/scripteddialogs.h"
#include "support/tempfolder.h"

#include <QApplication>
#include <QEnterEvent>
#include <QLabel>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextDocument>

namespace quillane {

namespace {

class Forms : public TempFolder {};

TEST_F(Forms, BevelLinesLeaveOutTheirEnds) {
  QImage pixels(8, 4, QImage::Format_RGB32);
  pixels.fill(0xFFD4D0C8);
  QPalette palette;
  palette.setColor(QPalette::Dark, Qt::black);
  palette.setColor(QPalette::Light, Qt::red);
  QPainter painter(&pixels);
  Bevel bevel(painter, palette);
  bevel.shadow(1, 0, 3, 0);
  bevel.light(7, 0, 7, 3);
  DrawEtchedLine(bevel, 2, 2);
  painter.end();
  EXPECT_EQ(lettersOf(pixels),
            (std::vector<std::string>{".##....r", ".......r", "##.....r", "rr......"}));
}

TEST_F(Forms, PictureBoxShowsItsSurfacePixelForPixel) {
  PictureBox box;
  box.resize(115, 95);
  EXPECT_EQ(box.surface().image().size(), QSize(111, 91));
  box.Cls();
  DrawFilledRect(box.surface(), 0x0000FF, 0, 0, 1, 1);
  DrawFilledRect(box.surface(), 0xFF0000, 110, 90, 111, 91);
  const QImage seen = box.grab().toImage();
  EXPECT_EQ(seen.pixelColor(2, 2), QColor(Qt::red));
  EXPECT_EQ(seen.pixelColor(112, 92), QColor(Qt::blue));
  EXPECT_EQ(seen.pixelColor(3, 3), box.palette().color(QPalette::Window));
}

TEST_F(Forms, ImageBoxScrollsWhatHasNoRoom) {
  ImageBox box;
  box.resize(60, 60);
  box.show();
  box.setPicture(QImage(60, 60, QImage::Format_RGB32));
  EXPECT_EQ(box.viewport()->size(), QSize(60, 60)) << "without bars";
  QImage picture(200, 80, QImage::Format_RGB32);
  picture.fill(Qt::red);
  picture.setPixelColor(199, 79, Qt::blue);
  box.setPicture(picture);
  box.horizontalScrollBar()->setValue(200);
  box.verticalScrollBar()->setValue(200);
  const QImage shown = box.viewport()->grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.width() - 1, shown.height() - 1), QColor(Qt::blue));
  EXPECT_EQ(shown.pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(Forms, BalloonOpensOnHoverAndOnlyWithAText) {
  QWidget window;
  QLabel holder(&window);
  holder.setGeometry(100, 100, 16, 16);
  window.resize(200, 200);
  window.show();
  cTooltips tips(&holder);
  const auto balloon = [&] { return holder.findChild<QWidget*>("balloon"); };
  const auto hover = [&] {
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(&holder, &enter);
  };
  hover();
  EXPECT_FALSE(balloon()->isVisible());

  tips.setTitle(TipIcon::Error, "Title");
  tips.setText("<b>Text</b>");
  hover();
  EXPECT_TRUE(balloon()->isVisible());
  const auto* text = balloon()->findChild<QLabel*>("balloonText");
  EXPECT_EQ(text->text(), "<b>Text</b>");
  EXPECT_EQ(text->textFormat(), Qt::PlainText);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&holder, &leave);
  EXPECT_FALSE(balloon()->isVisible());
}

TEST_F(Forms, HostileNamesStayWithinTheBalloon) {
  Balloon balloon(nullptr);
  for (const QString& text : {QString(1'000'000, 'n'), QString("n\r\n").repeated(300'000),
                              QString("n ").repeated(300'000)}) {
    balloon.showAt({400, 400}, {}, text.left(300), text);
    EXPECT_LE(balloon.width(), 450);
    EXPECT_LE(balloon.findChild<QLabel*>("balloonText")->text().size(), 20100);
  }
}

TEST_F(Forms, AboutTellsTheVersionInMemoryOfEachLibrary) {
  const frmAbout about(nullptr);
  const auto* table = about.findChild<QLabel*>("lblLibraries");
  QTextDocument text;
  text.setHtml(table->text());
  const QString plain = text.toPlainText();
  for (const char* library : {"Qt", "libarchive", "FreeType", "Fontconfig"}) {
    const QRegularExpression row("\\b" + QString(library) + " [1-9]\\d*(\\.\\d+){1,3}\\s");
    EXPECT_TRUE(plain.contains(row)) << library << " in " << plain.toStdString();
  }
}

TEST_F(Forms, EmptyListSurvivesItsOperations) {
  FileListBox list;
  list.setEnding(".thm");
  list.setPath(path("missing"));
  EXPECT_NE(faultNumberOf([&] { list.refresh(); }), 0);
  list.invertSelection();
  list.selectEvery();
  list.setSelected(0, true);
  EXPECT_TRUE(list.selectedItems().isEmpty());
}

TEST_F(Forms, EventProcedureShowsAFaultAndPassesACancelOver) {
  ScriptedDialogs dialogs;
  dialogs.expectMessage("It broke.\r\nin Quillane.frmX.btnY_Click at line 7");
  const QString tag = "in Quillane.frmX.btnY_Click ";
  eventProcedure(dialogs, nullptr, tag, [] { throw Fault(FaultNumber::BadCall, "It broke.", 7); });
  eventProcedure(dialogs, nullptr, tag, [] { throw Fault(FaultNumber::DialogCancelled, "No."); });
}

TEST(Dialogs, TellTheEndingOfAFilter) {
  EXPECT_EQ(suffixOf("JPEG Files (*.jpg)"), "jpg");
  EXPECT_EQ(suffixOf("Pictures (*.jpg *.jpeg)"), "");
  EXPECT_EQ(suffixOf("All files (*.*)"), "");
}

}  // namespace

}  // namespace quillane
