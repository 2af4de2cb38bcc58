#pragma once

#include "grid/number_field.h"

#include <QWidget>
#include <functional>
#include <string>

class QLineEdit;

namespace lunavox {

class StepBar;

/// A NumberField on the screen: a text box and its scroll bar partner. A typed text counts once
/// Enter is pressed or the box is left.
class NumberFieldBox : public QWidget {
 public:
  /// Takes an entry; false when it is refused. The box shows the field's text again in any case.
  using Enter = std::function<bool(const std::string&)>;

  /// @param name      of the text box
  /// @param bar_name  of the scroll bar
  /// @param digits    the width of the box
  NumberFieldBox(const QString& name, const QString& bar_name, NumberField& field, int digits,
                 Enter enter, QWidget* parent = nullptr);
  /// The bar is named like the text box with an "s" appended, as most are.
  NumberFieldBox(const QString& name, NumberField& field, int digits, Enter enter,
                 QWidget* parent = nullptr);

  /// Called when Enter was pressed in the box: where the keyboard focus goes then.
  void on_done(std::function<void()> done) { done_ = std::move(done); }
  void set_enabled(bool enabled);
  /// Colour of the text, in the place of the theme's.
  void set_text_colour(const QColor& colour);

 protected:
  /// Enter is the field's own, also in a dialog with a default button; Escape takes back what was
  /// typed, and goes on to the dialog.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void commit();
  void show_field();
  void step_to(int value);

  NumberField& field_;
  Enter enter_;
  std::function<void()> done_;
  QLineEdit* text_;
  StepBar* bar_;
  bool entering_ = false;  // a message box may be open
};

}  // namespace lunavox
