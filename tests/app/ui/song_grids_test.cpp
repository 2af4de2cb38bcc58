#include "app/ui/song_grids.h"

#include "grid/ui/grid_view.h"
#include "tests/support/song_parts.h"
#include "window_bench.h"

#include <QScrollBar>
#include <algorithm>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// The three grids of a song of four tracks, fitted to a screen and as wide as it.
struct SongGridsTest : testing::Test {
  explicit SongGridsTest(const Screen& screen = {800, 600}) : fixture(4, 64, screen) {
    grids.resize(fixture.screen.width(), 400);
    grids.show();
    (void)QTest::qWaitForWindowExposed(&grids);
  }

  QScrollBar& defilchan() { return *grids.findChild<QScrollBar*>(QStringLiteral("defilchan")); }
  GridView& grid(const char* name) {
    return *static_cast<GridView*>(grids.findChild<QTableView*>(QLatin1String(name)));
  }

  test::WindowBench bench;  // for its keys
  test::SongParts fixture;
  NoteKeyboard keyboard{bench.editor.note_keys, bench.editor.typing_mode, LayoutSet::kQwerty};
  Property<bool> curs;
  SongGrids grids{{fixture.song, fixture.flags, fixture.screen, curs}, keyboard, {}};
};

TEST_F(SongGridsTest, FourTracksAt800By600ScrollFromTheFirstToTheThird) {
  EXPECT_EQ(defilchan().orientation(), Qt::Horizontal);
  EXPECT_EQ(defilchan().minimum(), 1);
  EXPECT_EQ(defilchan().maximum(), 3);
  EXPECT_TRUE(defilchan().isEnabled());
  defilchan().setValue(3);
  EXPECT_EQ(fixture.screen.defilchan, 3);
}

TEST_F(SongGridsTest, OnceAllTracksFitTheBarHasNowhereToGo) {
  fixture.tracks.menudeltrack_click();
  EXPECT_EQ(defilchan().maximum(), 2);
  fixture.tracks.menudeltrack_click();
  EXPECT_EQ(defilchan().maximum(), 1);
  EXPECT_FALSE(defilchan().isEnabled());
  fixture.tracks.addinstrutrack();
  EXPECT_EQ(defilchan().maximum(), 2);
}

TEST_F(SongGridsTest, TrackHeadersAreWhiteOnBlue) {
  const QImage headers = grid("channels").viewport()->grab().toImage();
  EXPECT_EQ(headers.pixelColor(4, 4).name().toStdString(), "#3c3c8c");
  int lightest = 0;
  for (int x = 0; x < headers.width(); ++x) {
    for (int y = 0; y < headers.height(); ++y) {
      lightest = std::max(lightest, headers.pixelColor(x, y).lightness());
    }
  }
  EXPECT_GT(lightest, 240) << "the theme's own text is not as light";
}

struct WideSongGridsTest : SongGridsTest {
  WideSongGridsTest() : SongGridsTest({1024, 768}) {}
};

TEST_F(WideSongGridsTest, ThreeTracksFitAcross1024Pixels) {
  EXPECT_EQ(defilchan().maximum(), 2);
  const GridView& tracks = grid("tracks");
  EXPECT_EQ(tracks.viewport()->width() / tracks.track_width(), 3);
}

}  // namespace
}  // namespace lunavox
