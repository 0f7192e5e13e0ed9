// A text box that tells typing, confirming and leaving apart.
#pragma once

#include <QLineEdit>

class QPainter;

namespace pitchcraft {

/// Measures that the fields have room for, whatever the font: of a long roof, and of a board.
inline constexpr const char* kLongMeasure = "100' 10 15/16\"";
inline constexpr const char* kShortMeasure = "11 15/16\"";
/// Of any box in a row of the sheet: the frame and what stands free inside of it.
inline constexpr int kAboveAndBelowText = 6;

/// Modified means: typed into since the last text that the program showed. A modified box keeps what was
/// typed until its owner has taken it.
class EntryBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit EntryBox(QWidget* parent);

  bool Modified() const { return modified_; }
  /// The owner took or threw away the entry.
  void Settle() { modified_ = false; }
  /// Shows a text of the program; nothing is signalled.
  void ShowText(const std::string& text);
  std::string Entry() const { return text().toStdString(); }
  /// A box that takes no entry is read and copied from.
  void SetTakesEntry(bool takes);
  /// Marks the box with a small clock: its entry waits for the next calculation.
  void ShowWaiting(bool waits);
  bool Waits() const { return waits_; }
  /// Of a box in which all of the text can be read.
  QSize SizeFor(const QString& text) const;

  /// Leaves the box that has the focus, without moving the focus: before a menu item, a tool button or a page
  /// acts, what was typed counts.
  static void CommitFocused();

 signals:
  void Edited();          ///< after each change by the person
  void Entered();         ///< Enter
  void Tabbed();          ///< Tab or Shift+Tab, before the focus moves
  void Left();            ///< the focus goes to another part of the window
  void Escaped();         ///< Escape in a modified box
  void Stepped(bool up);  ///< arrow up or down
  void ListAsked();       ///< Alt and arrow down, or F4

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintClock(QPainter& painter) const;

  bool modified_ = false;
  bool waits_ = false;
  bool showing_ = false;
};

}  // namespace pitchcraft
