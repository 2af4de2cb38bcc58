#include "app/ui/widgets/qt_dialogs.h"
#include "app/ui/widgets/qt_progress_box.h"
#include "app/ui/widgets/theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmapCache>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <algorithm>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// Does something with the box that is about to be shown, then presses a button of it.
template <class Box, class Look>
void answer_box(Look look) {
  QTimer::singleShot(0, [look] {
    auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    look(*box);
  });
}

TEST(QtDialogs, MessagesShowTheirTextsWithTheirLineBreaks) {
  QtDialogs dialogs;
  answer_box<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text().toStdString(), "Error in sending\nThe device is busy.");
    EXPECT_EQ(box.windowTitle().toStdString(), "Lunavox");
    box.button(QMessageBox::Ok)->click();
  });
  dialogs.message({"Error in sending\r\nThe device is busy.", "", Icon::kNone, Buttons::kOk, {}});
}

TEST(QtDialogs, ACriticalMessageCarriesAMarkAndAnOkButtonOnly) {
  QtDialogs dialogs;
  const auto look = [](bool marked) {
    return [marked](QMessageBox& box) {
      EXPECT_EQ(box.iconPixmap().isNull(), !marked);
      EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
      box.button(QMessageBox::Ok)->click();
    };
  };
  answer_box<QMessageBox>(look(true));
  dialogs.error("Invalid value (30-300)");
  answer_box<QMessageBox>(look(false));
  dialogs.message({"Error in sending", "", Icon::kNone, Buttons::kOk, {}});
}

TEST(QtDialogs, AQuestionOffersYesNoAndCancel) {
  QtDialogs dialogs;
  answer_box<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle().toStdString(), "Quit");
    EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.button(QMessageBox::No)->click();
  });
  dialogs.message({"Save?", "Quit", Icon::kNone, Buttons::kYesNoCancel, {}});
}

TEST(QtDialogs, QuestionsAreAnsweredByTheirButtons) {
  QtDialogs dialogs;
  const Message question = {"Save?", "Quit", Icon::kNone, Buttons::kYesNoCancel, {}};
  for (const auto& [button, answer] :
       {std::pair{QMessageBox::Yes, Answer::kYes}, std::pair{QMessageBox::No, Answer::kNo},
        std::pair{QMessageBox::Cancel, Answer::kCancel}}) {
    answer_box<QMessageBox>([b = button](QMessageBox& box) { box.button(b)->click(); });
    EXPECT_EQ(dialogs.message(question), answer);
  }
}

TEST(QtDialogs, AFileDialogIsTakenDownAfterItHasBeenTold) {
  QWidget window;
  QtDialogs dialogs;
  dialogs.set_window(&window);
  int told_while_it_stood = 0;
  dialogs.on_long_work([&] { told_while_it_stood += window.findChild<QFileDialog*>() != nullptr; });
  for (const auto& ask : {&QtDialogs::open_file, &QtDialogs::save_file}) {
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    EXPECT_EQ((dialogs.*ask)({"Lunavox (*.lvx)|*.lvx", "File"}), "");
  }
  EXPECT_EQ(told_while_it_stood, 2);
}

TEST(QtDialogs, OnlyACriticalMessageHasAnIcon) {
  QtDialogs dialogs;
  const auto has_icon = [&](const Message& message) {
    bool icon = false;
    answer_box<QMessageBox>([&icon](QMessageBox& box) {
      icon = box.icon() != QMessageBox::NoIcon || !box.iconPixmap().isNull();
      box.close();
    });
    dialogs.message(message);
    return icon;
  };
  EXPECT_TRUE(has_icon({"Invalid value (1-6)", "", Icon::kCritical, Buttons::kOk, {}}));
  EXPECT_FALSE(has_icon({"Lunavox 2.1", "About", Icon::kNone, Buttons::kOk, {}}));
  EXPECT_FALSE(has_icon({"Save?", "Quit", Icon::kNone, Buttons::kYesNoCancel, {}}));
}

TEST(QtDialogs, AMessageStandsBeforeTheDialogThatAsksAndGivesItTheKeysBack) {
  QWidget window;
  window.show();
  QDialog options(&window);
  options.show();
  options.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&options));
  QtDialogs dialogs;
  dialogs.set_window(&window);
  answer_box<QMessageBox>([&options](QMessageBox& box) {
    EXPECT_EQ(box.parentWidget(), &options);
    box.button(QMessageBox::Ok)->click();
  });
  dialogs.error("Invalid value (0-8)");
}

TEST(QtDialogs, EscapeCancelsAQuestion) {
  QtDialogs dialogs;
  answer_box<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(dialogs.message({"Save?", "Quit", Icon::kNone, Buttons::kYesNoCancel, {}}),
            Answer::kCancel);
}

TEST(QtDialogs, ANoticeIsNotShownAgainOnceTheUserSaysSo) {
  QSettings().remove(QStringLiteral("notices/test"));
  QtDialogs dialogs;
  const Message notice = {"Too small", "error", Icon::kCritical, Buttons::kOk, "test"};
  answer_box<QMessageBox>([](QMessageBox& box) {
    box.findChild<QCheckBox*>(QStringLiteral("dontshow"))->setChecked(true);
    box.button(QMessageBox::Ok)->click();
  });
  dialogs.message(notice);
  dialogs.message(notice);  // would wait for ever
  QSettings().remove(QStringLiteral("notices/test"));
}

TEST(QtDialogs, AnInputBoxOffersItsDefaultSelectedAndIsEmptyWhenCancelled) {
  QtDialogs dialogs;
  answer_box<QInputDialog>([](QInputDialog& box) {
    EXPECT_EQ(box.findChild<QLineEdit*>()->selectedText().toStdString(), "64");
    box.findChild<QLineEdit*>()->clear();
    QTest::keyClicks(box.findChild<QLineEdit*>(), QStringLiteral("100"));
    box.accept();
  });
  EXPECT_EQ(dialogs.input({"enter a value", "effect start value", "64"}), "100");
  answer_box<QInputDialog>([](QInputDialog& box) { box.reject(); });
  EXPECT_EQ(dialogs.input({"enter a value", "effect start value", "64"}), "");
}

TEST(QtDialogs, FileFiltersAreWrittenTheToolkitsWay) {
  EXPECT_EQ(file_filter("Lunavox (*.lvo;*.lvx)|*.lvo;*.lvx").toStdString(),
            "Lunavox (*.lvo *.lvx)");
  EXPECT_EQ(file_filter("midi file (*.mid)|*.mid").toStdString(), "midi file (*.mid)");
  EXPECT_EQ(first_suffix("midi file (*.mid)|*.mid").toStdString(), "mid");
}

struct QtProgressBoxTest : testing::Test {
  QtProgressBoxTest() {
    window.resize(600, 400);
    window.show();
    (void)QTest::qWaitForWindowExposed(&window);
    box.set_window(&window);
  }
  QWidget& card() { return *window.findChild<QWidget*>(QStringLiteral("Form3")); }

  QWidget window;
  QtProgressBox box;
};

TEST_F(QtProgressBoxTest, AShortOperationDoesNotFlash) {
  box.show("numeroting lines...", 10);
  box.set_value(5);
  EXPECT_FALSE(card().isVisible());
  box.hide();
}

TEST_F(QtProgressBoxTest, ALongOperationShowsTheBoxUntilItsEnd) {
  box.set_patience(0);
  box.show("numeroting lines...", 10);
  box.set_value(5);
  EXPECT_TRUE(card().isVisible());
  EXPECT_EQ(card().windowTitle().toStdString(), "PLEASE WAIT...");
  box.hide();
  QCoreApplication::processEvents();
  EXPECT_FALSE(card().isVisible());
}

TEST_F(QtProgressBoxTest, TheBoxTellsWhatIsDoneAndHowFarItHasCome) {
  const auto filled_pixels = [this] {
    const QImage image = card().grab().toImage();
    int filled = 0;
    for (int y = 0; y < image.height(); ++y) {
      int along = 0;
      for (int x = 1; x < image.width() - 1; ++x) along += image.pixelColor(x, y) == theme::kAccent;
      if (y > 0 && y < image.height() - 1) filled = std::max(filled, along);
    }
    return filled;
  };
  box.set_patience(0);
  box.show("numeroting lines...", 10);
  EXPECT_EQ(card().accessibleDescription().toStdString(), "numeroting lines...");
  box.set_value(0);
  EXPECT_EQ(filled_pixels(), 0);
  box.set_value(10);
  const int whole = filled_pixels();
  EXPECT_GT(whole, 100);
  box.set_value(5);
  EXPECT_NEAR(2 * filled_pixels(), whole, 2);
  box.set_caption("preparing beats...");
  EXPECT_EQ(card().accessibleDescription().toStdString(), "preparing beats...");
  box.hide();
}

TEST_F(QtProgressBoxTest, WhatTheUserDoesMeanwhileWaits) {
  struct Pressed : QObject {
    bool event(QEvent* event) override {
      came = came || event->type() == QEvent::User;
      return QObject::event(event);
    }
    bool came = false;
  } pressed;
  box.set_patience(0);
  box.show("adding instrument track...", 2);
  QCoreApplication::postEvent(&pressed, new QEvent(QEvent::User));
  box.set_value(1);
  box.set_caption("showing effect...");
  box.set_value(2);
  box.hide();
  EXPECT_FALSE(pressed.came);
  QCoreApplication::processEvents();
  EXPECT_TRUE(pressed.came);
}

TEST_F(QtProgressBoxTest, WorkBeforeThereIsAWindowShowsNothing) {
  QtProgressBox early;
  early.show("adding drum track...", 1);
  early.set_value(1);
  early.hide();
}

TEST(Theme, PicturesOfDialogsThatAreGoneDoNotPileUp) {
  EXPECT_EQ(QPixmapCache::cacheLimit(), 1024);  // kilobytes
}

}  // namespace
}  // namespace lunavox
