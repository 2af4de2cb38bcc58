#include "grid/ui/qt_dialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QTreeView>

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

TEST(QtDialogs, ACriticalMessageOfOneLineStandsAtTheMiddleOfItsMark) {
  QtDialogs dialogs;
  answer_box<QMessageBox>([](QMessageBox& box) {
    const QRect mark = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"))->geometry();
    const auto& text = *box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    EXPECT_TRUE(text.alignment().testFlag(Qt::AlignVCenter));
    EXPECT_NEAR(text.geometry().center().y(), mark.center().y(), 2);
    box.button(QMessageBox::Ok)->click();
  });
  dialogs.error("Invalid value (30-300)");
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

TEST(QtDialogs, AFileDialogShowsAllThatItsColumnsHold) {
  QtDialogs dialogs;
  answer_box<QFileDialog>([](QFileDialog& dialog) {
    const auto& columns = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    EXPECT_GE(dialog.width(), 760);
    EXPECT_EQ(columns.sectionResizeMode(0), QHeaderView::Stretch);
    for (int column = 1; column < columns.count(); ++column) {
      EXPECT_EQ(columns.sectionResizeMode(column), QHeaderView::ResizeToContents) << column;
    }
    dialog.reject();
  });
  EXPECT_EQ(dialogs.open_file({"Lunavox (*.lvx)|*.lvx", "Open"}), "");
}

TEST(QtDialogs, AnInputBoxHasRoomForItsTitle) {
  QtDialogs dialogs;
  answer_box<QInputDialog>([](QInputDialog& box) {
    EXPECT_GE(box.width(), 300);
    box.reject();
  });
  EXPECT_EQ(dialogs.input({"enter a value", "effect start value", "64"}), "");
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

}  // namespace
}  // namespace lunavox
