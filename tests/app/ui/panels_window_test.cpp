#include "grid/ui/grid_view.h"
#include "grid/ui/theme.h"
#include "window_bench.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>

#include <gmock/gmock.h>

namespace lunavox {
namespace {

using test::error_box;
using test::WindowBench;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct PanelsWindowTest : testing::Test {
  bool holds(const char* panel, const char* control) {
    return bench.find<QFrame>(panel).findChild<QWidget*>(QLatin1String(control)) != nullptr;
  }

  void click(const char* box) {
    QTest::mouseClick(&bench.find<QCheckBox>(box), Qt::LeftButton, {}, QPoint(6, 8));
  }

  WindowBench bench;
  Editor& editor = bench.editor;
};

TEST_F(PanelsWindowTest, EachControlStandsInItsPanel) {
  EXPECT_TRUE(holds("Frame6", "timemin"));
  EXPECT_TRUE(holds("Frame2", "length"));
  EXPECT_TRUE(holds("Frame1", "bpm"));
  EXPECT_TRUE(holds("Frame3", "number"));
  EXPECT_TRUE(holds("Frame5", "step"));
  for (const char* list : {"reverb", "chorus", "variation"}) EXPECT_TRUE(holds("Frame11", list));
  EXPECT_TRUE(holds("Frame4", "bookmark"));
  for (const char* control : {"realtime", "begin", "velocity", "curs", "area", "strength"}) {
    EXPECT_TRUE(holds("Frame10", control)) << control;
  }
  EXPECT_TRUE(holds("Frame14", "playnotes"));
  EXPECT_TRUE(holds("Frame14", "recordnotes"));
}

TEST_F(PanelsWindowTest, EachCheckBoxTicksItsOwnOption) {
  struct Tick {
    const char* box;
    Property<bool>& option;
  };
  const Tick ticks[] = {{"realtime", editor.options.realtime},
                        {"begin", editor.options.begin},
                        {"velocity", editor.options.velocity},
                        {"curs", editor.options.curs},
                        {"area", editor.screen.area}};
  for (const Tick& tick : ticks) {
    click(tick.box);
    for (const Tick& other : ticks) {
      EXPECT_EQ(other.option.get(), &other == &tick) << tick.box << ", " << other.box;
    }
    click(tick.box);
    EXPECT_FALSE(tick.option.get()) << tick.box;
  }
  EXPECT_FALSE(editor.flags.modified);
}

TEST_F(PanelsWindowTest, TheTabKeyWalksFromTheNotesThroughThePanelsInOrder) {
  std::vector<std::string> walked;
  bench.window.focus_tracks();
  for (int i = 0; i < 19; ++i) {
    QTest::keyClick(bench.window.focusWidget(), Qt::Key_Tab);
    walked.push_back(bench.window.focusWidget()->objectName().toStdString());
  }
  EXPECT_THAT(walked,
              ElementsAre("playnotes", "recordnotes", "length", "bpm", "number", "step", "reverb",
                          "chorus", "variation", "bookmark", "Image1", "Image2", "realtime",
                          "begin", "velocity", "curs", "area", "strength", "effects"));
}

TEST_F(PanelsWindowTest, EachControlSaysWhatItDoes) {
  for (const char* name : {"playnotes", "recordnotes", "realtime", "begin", "velocity", "curs",
                           "area", "Image1", "Image2"}) {
    EXPECT_FALSE(bench.find<QAbstractButton>(name).toolTip().isEmpty()) << name;
  }
}

TEST_F(PanelsWindowTest, ASettingIsMarkedAsSoonAsTheTabKeyComesToThem) {
  auto& effects = static_cast<GridView&>(bench.find<QTableView>("effects"));
  bench.window.focus_tracks();
  WindowBench::settle();
  const QRect first = effects.cell_rect({1, 1});
  const auto corner = [&] {
    const QImage picture = effects.viewport()->grab(first).toImage();
    return picture.pixelColor(0, 0);
  };
  EXPECT_NE(corner(), theme::kAccent);
  QTest::keyClick(bench.window.focusWidget(), Qt::Key_Backtab);
  WindowBench::settle();
  EXPECT_EQ(bench.window.focusWidget(), &effects);
  EXPECT_EQ(corner(), theme::kAccent);
}

TEST_F(PanelsWindowTest, TheTimeFollowsTheFields) {
  QLabel& timemin = bench.find<QLabel>("timemin");
  bench.find<QScrollBar>("bpms").setValue(60);
  EXPECT_EQ(timemin.text().toStdString(), " 0:16");
  bench.find<QScrollBar>("numbers").setValue(1);
  EXPECT_EQ(timemin.text().toStdString(), " 1:04");
  bench.find<QScrollBar>("lengths").setValue(120);
  EXPECT_EQ(timemin.text().toStdString(), " 2:00");
}

struct FieldBox {
  const char* name;
  const char* bar;
  NumberField Song::*field;
  int lowest;
  int highest;
  const char* too_much;
  const char* message;
};

std::ostream& operator<<(std::ostream& out, const FieldBox& box) {
  return out << box.name;
}

struct FieldBoxTest : testing::TestWithParam<FieldBox> {
  void type(const char* text) {
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QLatin1String(text));
  }
  std::string shown() const { return field.text().toStdString(); }
  std::string held() const { return (bench.editor.song.*GetParam().field).text(); }

  WindowBench bench;
  QLineEdit& field = bench.find<QLineEdit>(GetParam().name);
  QScrollBar& bar = bench.find<QScrollBar>(GetParam().bar);
};

TEST_P(FieldBoxTest, ItsScrollBarIsVerticalAndHasTheFieldsRangeAndValue) {
  EXPECT_EQ(bar.orientation(), Qt::Vertical);
  EXPECT_EQ(bar.minimum(), GetParam().lowest);
  EXPECT_EQ(bar.maximum(), GetParam().highest);
  EXPECT_EQ(std::to_string(bar.value()), held());
  EXPECT_EQ(shown(), held());
}

TEST_P(FieldBoxTest, TheScrollBarWritesTheField) {
  for (const int value : {GetParam().highest, GetParam().lowest}) {
    bar.setValue(value);
    EXPECT_EQ(shown(), std::to_string(value));
    EXPECT_EQ(held(), std::to_string(value));
  }
  EXPECT_THAT(bench.dialogs.messages, IsEmpty());
}

TEST_P(FieldBoxTest, EnterTakesTheTextAndTheScrollBarFollows) {
  type(std::to_string(GetParam().lowest).c_str());
  QTest::keyClick(&field, Qt::Key_Enter);
  EXPECT_EQ(held(), std::to_string(GetParam().lowest));
  EXPECT_EQ(bar.value(), GetParam().lowest);
}

TEST_P(FieldBoxTest, TheTabKeyTakesTheText) {
  type(std::to_string(GetParam().lowest).c_str());
  QTest::keyClick(&field, Qt::Key_Tab);
  EXPECT_EQ(held(), std::to_string(GetParam().lowest));
}

TEST_P(FieldBoxTest, EscapeTakesTheTypedTextBack) {
  const std::string before = held();
  type(std::to_string(GetParam().lowest).c_str());
  QTest::keyClick(&field, Qt::Key_Escape);
  EXPECT_EQ(shown(), before);
  bench.window.focus_tracks();
  EXPECT_EQ(held(), before);
}

TEST_P(FieldBoxTest, ABadEntryIsToldOnceAndTheLastValidTextAndValueReturn) {
  bar.setValue(GetParam().lowest);
  bench.editor.flags.modified = false;
  type(GetParam().too_much);
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_THAT(bench.dialogs.messages, ElementsAre(error_box(GetParam().message)));
  EXPECT_EQ(shown(), std::to_string(GetParam().lowest));
  EXPECT_EQ(held(), std::to_string(GetParam().lowest));
  EXPECT_EQ(bar.value(), GetParam().lowest);
  EXPECT_FALSE(bench.editor.flags.modified);
}

INSTANTIATE_TEST_SUITE_P(
    All, FieldBoxTest,
    testing::Values(
        FieldBox{"bpm", "bpms", &Song::bpm, 30, 300, "301", "Invalid value (30-300)"},
        FieldBox{"length", "lengths", &Song::length, 2, 3000, "3001", "Invalid value (2-3000)"},
        FieldBox{"number", "numbers", &Song::number, 1, 8, "9", "Invalid value (1-8)"},
        FieldBox{"step", "steps", &Song::step, 0, 16, "17", "Invalid value (0-16)"},
        FieldBox{"strength", "strengths", &Song::strength, 1, 127, "128", "Invalid value (1-127)"}),
    [](const auto& box) { return std::string(box.param.name); });

}  // namespace
}  // namespace lunavox
