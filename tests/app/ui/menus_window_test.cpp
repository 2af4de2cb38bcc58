#include "app/ui/menus.h"
#include "tests/support/widgets.h"
#include "window_bench.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QTextDocumentFragment>

#include <gmock/gmock.h>

namespace lunavox {
namespace {

using test::error_box;
using test::WindowBench;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A menu bar of its own whose commands only say that they were called.
struct MenusTest : testing::Test {
  MenusTest() {
    const auto said = [this](const char* name) {
      return [this, name] { called.emplace_back(name); };
    };
    commands.menunew = said("menunew");
    commands.menuopen = said("menuopen");
    commands.menusave = said("menusave");
    commands.menusaveas = said("menusaveas");
    commands.menuexport = said("menuexport");
    commands.menuquit = said("menuquit");
    commands.menucut = said("menucut");
    commands.menucopy = said("menucopy");
    commands.menupaste = said("menupaste");
    commands.menuvelval = said("menuvelval");
    commands.menuvelper = said("menuvelper");
    commands.menutrans = said("menutrans");
    commands.menuask = said("menuask");
    commands.menuaddinstru = said("menuaddinstru");
    commands.menudeltrack = said("menudeltrack");
    commands.menuhelp = said("menuhelp");
    commands.menuauthor = said("menuauthor");
    commands.outputdev = [this](int index) { called.push_back("output" + std::to_string(index)); };
    build_menus(bar, commands, outputs, recent);
  }

  QAction& entry(const std::string& name) {
    return *bar.findChild<QAction*>(QString::fromStdString(name));
  }

  MenuCommands commands;
  Property<std::vector<OutputItem>> outputs;
  Property<std::vector<std::string>> recent;
  QMenuBar bar;
  std::vector<std::string> called;
};

TEST_F(MenusTest, MenusStandInTheirOrder) {
  std::vector<std::string> names;
  for (const QAction* menu : bar.actions()) {
    names.push_back(menu->menu()->objectName().toStdString() + " " + menu->text().toStdString());
  }
  EXPECT_THAT(names,
              ElementsAre("menufile &File", "menuedit &Edit", "menuinput &Input device",
                          "menuoutput &Output device", "menutrack &Track", "menuabout &Help"));
}

TEST_F(MenusTest, EachEntryRunsItsOwnCommandOnce) {
  for (const char* name :
       {"menunew", "menuopen", "menusave", "menusaveas", "menuexport", "menuquit", "menucut",
        "menucopy", "menupaste", "menuvelval", "menuvelper", "menutrans", "menuask",
        "menuaddinstru", "menudeltrack", "menuhelp", "menuauthor"}) {
    called.clear();
    EXPECT_TRUE(entry(name).isEnabled()) << name;
    entry(name).trigger();
    EXPECT_THAT(called, ElementsAre(name));
  }
}

TEST_F(MenusTest, EachOfTheSixteenOutputItemsRunsItsClick) {
  std::vector<OutputItem> items;
  for (int index = 0; index < 16; ++index) items.push_back({"Port", false});
  outputs = items;
  for (int index = 0; index < 16; ++index) {
    called.clear();
    QAction& item = entry("output" + std::to_string(index));
    EXPECT_TRUE(item.isVisible()) << index;
    EXPECT_TRUE(item.isEnabled()) << index;
    item.trigger();
    EXPECT_THAT(called, ElementsAre("output" + std::to_string(index)));
  }
}

TEST_F(MenusTest, AnOutputsNameIsShownToTheLetter) {
  outputs = std::vector<OutputItem>{{"System default", false}, {"Pads & Keys", true}};
  EXPECT_EQ(entry("output1").text().toStdString(), "Pads && Keys") << "not a letter to press";
  EXPECT_TRUE(entry("output1").isChecked());
  EXPECT_FALSE(entry("output0").isChecked());
}

TEST_F(MenusTest, ALatestSongShowsItsWholeNameOverItToTheLetter) {
  recent = std::vector<std::string>{"/music/old/song.lvx", "/music/<b>/song.lvx"};
  EXPECT_EQ(entry("recent0").text().toStdString(), "song.lvx");
  EXPECT_EQ(entry("recent1").text().toStdString(), "song.lvx");
  const auto shown = [&](const char* name) {
    return QTextDocumentFragment::fromHtml(entry(name).toolTip()).toPlainText().toStdString();
  };
  EXPECT_EQ(shown("recent0"), "/music/old/song.lvx");
  EXPECT_EQ(shown("recent1"), "/music/<b>/song.lvx");
  EXPECT_TRUE(bar.findChild<QMenu*>("menufile")->toolTipsVisible());
}

struct MenusWindowTest : testing::Test {
  void trigger(const char* action) {
    bench.find<QAction>(action).trigger();
    WindowBench::settle();
  }

  WindowBench bench{1, LayoutSet::kQwerty, "Keys"};
  Editor& editor = bench.editor;
};

TEST_F(MenusWindowTest, AskForInputDeviceNextLaunchForgetsTheDevice) {
  std::filesystem::create_directories(bench.folders().config);
  bench.home.write("config/lvconfig.ini", "input=0\r\nboot=1\r\n");
  trigger("menuask");
  EXPECT_EQ(bench.home.read("config/lvconfig.ini"), "input=\r\nboot=1\r\n");
  EXPECT_TRUE(editor.input.is_open()) << "only the next start asks";
}

TEST_F(MenusWindowTest, DeletingALastTrackShowsInTheGrids) {
  trigger("menuaddinstru");
  trigger("menudeltrack");
  EXPECT_EQ(editor.song.track_count, 1);
  EXPECT_EQ(bench.find<QTableView>("tracks").model()->columnCount(), 9);
  EXPECT_EQ(bench.find<QTableView>("effects").model()->columnCount(), 3);
  EXPECT_EQ(bench.find<QTableView>("channels").model()->columnCount(), 1);
  EXPECT_TRUE(editor.flags.modified);
}

TEST_F(MenusWindowTest, NineInstrumentTracksAreAddedAndATenthIsRefused) {
  for (int i = 0; i < 9; ++i) trigger("menuaddinstru");
  EXPECT_THAT(bench.dialogs.messages, IsEmpty());
  EXPECT_EQ(bench.find<QTableView>("tracks").model()->columnCount(), 90);
  trigger("menuaddinstru");
  EXPECT_THAT(bench.dialogs.messages,
              ElementsAre(error_box("You can't add more intrument tracks", "Error")));
  EXPECT_EQ(editor.song.track_count, 10);
}

TEST_F(MenusWindowTest, ANewOutputPutsAllThreeXgListsBackAndSendsTheFourMessagesOnly) {
  editor.song.reverb = 4;
  editor.song.chorus = 10;
  editor.song.variation = 22;
  trigger("output2");
  EXPECT_EQ(bench.find<QComboBox>("reverb").currentText().toStdString(), "Hall 1");
  EXPECT_EQ(bench.find<QComboBox>("chorus").currentText().toStdString(), "Chorus 1");
  EXPECT_EQ(bench.find<QComboBox>("variation").currentText().toStdString(), "Delay LCR");
  EXPECT_EQ(bench.outputs.sysexes().size(), 4U);
  EXPECT_FALSE(editor.flags.modified);
}

TEST_F(MenusWindowTest, AnOutputThatCannotBeOpenedEndsTheProgramAfterItsMessage) {
  bench.outputs.opens = false;
  bench.inputs.calls.clear();
  trigger("output2");
  EXPECT_EQ(bench.dialogs.messages.back(), error_box("No Midi output device found", "Error"));
  EXPECT_THAT(bench.inputs.calls, ElementsAre("close"));
  EXPECT_EQ(bench.shell.ended(), 1);
}

struct Mnemonic {
  const char* menu;
  Qt::Key letter;
};

std::ostream& operator<<(std::ostream& out, const Mnemonic& mnemonic) {
  return out << mnemonic.menu;
}

struct MnemonicTest : testing::TestWithParam<Mnemonic> {
  WindowBench bench;
};

TEST_P(MnemonicTest, AltAndItsLetterOpenTheMenuAndPlayNoNote) {
  test::wait_until_active(bench.window);
  QTest::keyClick(&bench.find<QTableView>("tracks"), GetParam().letter, Qt::AltModifier);
  EXPECT_TRUE(bench.find<QMenu>(GetParam().menu).isVisible());
  for (const std::uint32_t message : bench.outputs.shorts()) {
    const bool note_on = (message & 0xF0) == 0x90 && message >> 16 != 0;
    EXPECT_FALSE(note_on) << "the letter played a note";
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, MnemonicTest,
    testing::Values(Mnemonic{"menufile", Qt::Key_F}, Mnemonic{"menuedit", Qt::Key_E},
                    Mnemonic{"menuinput", Qt::Key_I}, Mnemonic{"menuoutput", Qt::Key_O},
                    Mnemonic{"menutrack", Qt::Key_T}, Mnemonic{"menuabout", Qt::Key_H}),
    [](const auto& mnemonic) { return std::string(mnemonic.param.menu); });

}  // namespace
}  // namespace lunavox
