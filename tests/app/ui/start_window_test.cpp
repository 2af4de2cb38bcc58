#include "midi/ports/null_device.h"
#include "tests/support/shown_boxes.h"
#include "window_bench.h"

#include <QAction>
#include <QDialog>
#include <QGuiApplication>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSettings>

#include <gmock/gmock.h>

namespace lunavox {
namespace {

using test::error_box;
using test::ShownBoxes;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A program that has not been started yet, on a machine with two MIDI keyboards.
struct StartWindowTest : testing::Test {
  ~StartWindowTest() override { test::begin_anew_after(shell); }

  void remember(const std::string& config) {
    std::filesystem::create_directories(home.path() / "config");
    home.write("config/lvconfig.ini", config);
  }

  /// Does something with the input device dialog once it asks.
  void at_form2(const std::function<void(QListWidget& devices, QDialog& form2)>& act) {
    boxes.next<QDialog>([act](QDialog& form2) {
      EXPECT_EQ(form2.objectName().toStdString(), "Form2");
      auto* devices = form2.findChild<QListWidget*>(QStringLiteral("List1"));
      ASSERT_NE(devices, nullptr);
      act(*devices, form2);
    });
  }

  static void click(QDialog& form2, const char* button) {
    QTest::mouseClick(form2.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
  }

  bool listens() { return shell.editor().current_loop.is(shell.editor().listen); }

  test::TempFolder home;
  test::RecordingOutput outputs;
  test::ScriptedInputs inputs{{"Keys", "Pads"}};
  ManualClock clock;
  test::ScriptedDialogs dialogs;
  ShownBoxes boxes;
  WindowShell shell{{outputs, inputs, clock, test::folders_with_home(home)}, {}, &dialogs};
};

TEST_F(StartWindowTest, TheFirstStartAsksForTheInputAndGoesOnWithTheChosenOne) {
  at_form2([this](QListWidget& devices, QDialog& form2) {
    ASSERT_EQ(devices.count(), 2);
    EXPECT_EQ(devices.item(0)->text().toStdString(), "Keys");
    EXPECT_EQ(devices.item(1)->text().toStdString(), "Pads");
    EXPECT_THAT(outputs.calls, IsEmpty()) << "nothing is set up before the answer";
    devices.setCurrentRow(1);
    click(form2, "Command1");
  });
  shell.start("");
  EXPECT_EQ(inputs.opened, 1);
  EXPECT_THAT(inputs.calls, ElementsAre("start"));
  EXPECT_EQ(home.read("config/lvconfig.ini"), "input=1\r\nboot=1\r\n");
  EXPECT_TRUE(shell.window().isVisible());
  EXPECT_EQ(shell.editor().song.track_count, 1);
  EXPECT_TRUE(listens());
}

TEST_F(StartWindowTest, ConfirmingWithoutAChoiceIsRefusedAndTheDialogStays) {
  at_form2([this](QListWidget& devices, QDialog& form2) {
    click(form2, "Command1");
    EXPECT_THAT(dialogs.messages, ElementsAre(error_box("You must select an input device")));
    EXPECT_TRUE(form2.isVisible());
    EXPECT_FALSE(home.has("config/lvconfig.ini"));
    devices.setCurrentRow(0);
    click(form2, "Command1");
  });
  shell.start("");
  EXPECT_EQ(inputs.opened, 0);
}

TEST_F(StartWindowTest, TheEleventhInputIsOpenedAndRememberedAsItsLastDigit) {
  for (int number = 2; number <= 10; ++number) {
    inputs.device_names.push_back("Keyboard " + std::to_string(number));
  }
  at_form2([](QListWidget& devices, QDialog& form2) {
    devices.setCurrentRow(10);
    click(form2, "Command1");
  });
  shell.start("");
  EXPECT_EQ(inputs.opened, 10);
  EXPECT_EQ(home.read("config/lvconfig.ini"), "input=0\r\nboot=1\r\n");
}

TEST_F(StartWindowTest, QuittingInsteadOfChoosingEndsTheProgram) {
  at_form2([](QListWidget&, QDialog& form2) { click(form2, "Command2"); });
  shell.start("");
  EXPECT_EQ(shell.ended(), 0);
  EXPECT_EQ(inputs.opened, -1);
  EXPECT_THAT(outputs.calls, IsEmpty());
  EXPECT_FALSE(home.has("config/lvconfig.ini"));
}

TEST_F(StartWindowTest, ARememberedInputIsOpenedUnasked) {
  remember("input=1\r\nboot=1\r\n");
  shell.start("");
  EXPECT_EQ(inputs.opened, 1);
  EXPECT_TRUE(listens());
}

TEST_F(StartWindowTest, AForgottenInputIsAskedForAgain) {
  remember("input=\r\nboot=1\r\n");
  at_form2([](QListWidget& devices, QDialog& form2) {
    devices.setCurrentRow(0);
    click(form2, "Command1");
  });
  shell.start("");
  EXPECT_EQ(inputs.opened, 0);
}

TEST_F(StartWindowTest, AnInputThatCannotBeOpenedEndsTheProgramAfterItsMessage) {
  remember("input=0\r\nboot=1\r\n");
  inputs.opens = false;
  shell.start("");
  EXPECT_THAT(dialogs.messages, Contains(error_box("No Midi input device found", "Error")));
  EXPECT_EQ(shell.ended(), 1);
  EXPECT_THAT(outputs.calls, IsEmpty()) << "the output is opened after the input";
}

TEST_F(StartWindowTest, WithoutAnInputNobodyIsAskedAndTheEditorIsReady) {
  inputs.device_names.clear();
  shell.start("");
  EXPECT_TRUE(listens());
  EXPECT_FALSE(shell.ended());
}

TEST_F(StartWindowTest, TheScreensSizeIsTheOneThatTheWindowIsFittedTo) {
  const QSize size = QGuiApplication::primaryScreen()->size();
  EXPECT_EQ(shell.editor().screen.width(), size.width());
  EXPECT_EQ(shell.editor().screen.height(), size.height());
}

TEST_F(StartWindowTest, TheWindowRemembersItsPlace) {
  inputs.device_names.clear();
  shell.start("");
  shell.window().setWindowState(Qt::WindowNoState);
  shell.window().setGeometry(40, 30, 850, 560);
  shell.window().close();
  WindowShell next({outputs, inputs, clock, test::folders_with_home(home)}, {}, &dialogs);
  EXPECT_EQ(next.window().geometry(), QRect(40, 30, 850, 560));
}

TEST_F(StartWindowTest, AWindowWithoutARememberedPlaceFillsTheScreen) {
  QSettings().remove(QStringLiteral("window/place"));
  WindowShell first({outputs, inputs, clock, test::folders_with_home(home)}, {}, &dialogs);
  EXPECT_TRUE(first.window().isMaximized());
}

TEST_F(StartWindowTest, TheProgressBoxStandsInTheMainWindow) {
  auto* form3 = shell.window().findChild<QWidget*>(QStringLiteral("Form3"));
  ASSERT_NE(form3, nullptr);
  EXPECT_EQ(form3->windowTitle().toStdString(), "PLEASE WAIT...");
}

TEST_F(StartWindowTest, ClosingStopsAndResetsTheInputResetsTheOutputAndClosesBoth) {
  remember("input=0\r\nboot=1\r\n");
  shell.start("");
  inputs.calls.clear();
  outputs.calls.clear();
  EXPECT_TRUE(shell.window().close());
  EXPECT_THAT(inputs.calls, ElementsAre("stop", "reset", "close"));
  using Call = test::RecordingOutput::Call;
  EXPECT_THAT(outputs.calls,
              ElementsAre(Call{Call::kReset, 0, 0, {}}, Call{Call::kClose, 0, 0, {}}));
  EXPECT_EQ(shell.ended(), 0);
}

/// A fault ends the program where it stands: nobody has stopped what sounds, nor closed the ports.
TEST_F(StartWindowTest, AFaultSilencesTheOutputBeforeItsMessageAndClosesThePorts) {
  remember("input=0\r\nboot=1\r\n");
  shell.start("");
  outputs.calls.clear();
  inputs.calls.clear();
  using Call = test::RecordingOutput::Call;
  shell.end_on_fault("Overflow");
  EXPECT_EQ(outputs.calls, (std::vector<Call>{{Call::kReset, 0, 0, {}}, {Call::kClose, 0, 0, {}}}));
  EXPECT_THAT(inputs.calls, ElementsAre("stop", "reset", "close"));
  EXPECT_EQ(shell.ended(), 1);
}

TEST_F(StartWindowTest, AtAFaultTheSongIsKeptBeforeAnyPortIsTouched) {
  remember("input=0\r\nboot=1\r\n");
  shell.start("");
  shell.editor().flags.modified = true;
  const auto kept = [this] {
    for (const auto& file : std::filesystem::directory_iterator(home.path() / "state")) {
      if (file.path().filename().string().starts_with("recovery-") && file.file_size() > 0) {
        return true;
      }
    }
    return false;
  };
  EXPECT_FALSE(kept());
  std::vector<bool> kept_at_calls;
  inputs.on_call = [&] { kept_at_calls.push_back(kept()); };
  shell.end_on_fault("Overflow");
  EXPECT_THAT(kept_at_calls, ElementsAre(true, true, true));
}

/// An input on which a message arrives at the last moment, while it is being closed.
struct LateInputs : InputDevices {
  struct Device : NullInputDevice {
    explicit Device(InputCallback given) : callback(std::move(given)) {}
    ~Device() override { callback(0x643C90); }
    InputCallback callback;
  };
  std::vector<std::string> names() override { return {"Keys"}; }
  std::unique_ptr<InputDevice> open(int, InputCallback callback) override {
    return std::make_unique<Device>(std::move(callback));
  }
  std::string open_error() const override { return {}; }
};

TEST(WindowShell, AMessageThatArrivesAsTheWindowGoesDoesNoHarm) {
  const test::TempFolder home;
  test::RecordingOutput outputs;
  LateInputs inputs;
  ManualClock clock;
  test::ScriptedDialogs dialogs;
  const StartUp::Wishes wishes = {std::nullopt, "Keys", LayoutSet::kQwerty};
  WindowShell shell({outputs, inputs, clock, test::folders_with_home(home)}, wishes, &dialogs);
  shell.start("");
  EXPECT_TRUE(shell.editor().input.is_open());
}

}  // namespace
}  // namespace lunavox
