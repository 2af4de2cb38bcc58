#pragma once

#include "files/voice_choice.h"
#include "files/voice_search.h"

#include <QTableView>
#include <QTimer>
#include <functional>
#include <string>

namespace lunavox {

/// The grid `instrulist`. It tells of a cell going down and up, by the mouse or the space bar, and
/// finds a voice by the name that is typed.
class VoiceTable : public QTableView {
 public:
  struct Handlers {
    std::function<void(VoiceCell cell)> down = [](VoiceCell) {};
    std::function<void()> up = [] {};
    /// The selected cell or the text that is searched for has changed.
    std::function<void()> changed = [] {};
  };

  explicit VoiceTable(const VoiceBanks& banks, QWidget* parent = nullptr);

  void set_handlers(Handlers handlers) { handlers_ = std::move(handlers); }

  VoiceCell selected() const;
  /// Selects a cell and brings it into the middle.
  void select(VoiceCell cell);
  /// The letters typed just now; empty once they are a while ago.
  const std::string& sought() const { return sought_; }
  /// False when no voice has what is sought in its name.
  bool found() const { return found_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void set_look();
  bool take_search_key(const QKeyEvent& event);
  void end_search();
  void search(SearchFrom from);
  void press(VoiceCell cell);
  void release();

  const VoiceBanks& banks_;
  Handlers handlers_;
  QTimer forget_;
  std::string sought_;
  bool found_ = true;
  bool held_ = false;
};

}  // namespace lunavox
