// The outside world, behind interfaces: each has a real implementation and one for tests.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Date.h"

namespace sorvane {

namespace Dao {
class Engine;
}

enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

// Styles of a box: one set of buttons, plus an icon.
namespace BoxStyle {
inline constexpr int Ok = 0;
inline constexpr int OkCancel = 1;
inline constexpr int YesNoCancel = 3;
inline constexpr int YesNo = 4;
inline constexpr int Stop = 16;
inline constexpr int Exclamation = 48;
// Enter answers Yes. Without it a question is answered by Enter with Cancel, or with No where there is none:
// most of them delete or overwrite.
inline constexpr int EnterIsYes = 256;
}  // namespace BoxStyle

// The title of a box for which no title is given.
inline constexpr std::string_view ProgramName = "Sorvane";

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    // Shows a modal box with plain text and returns the button pressed. Escape and the close box of the
    // window answer Cancel where there is one, else Ok; a question with Yes and No only takes one of these.
    virtual Answer MsgBox(std::string_view text, int style = BoxStyle::Ok,
                          std::string_view title = ProgramName) = 0;
};

// A printer as the program sees it: lines in a fixed-pitch font, pages broken where they are full.
class Printer {
  public:
    virtual ~Printer() = default;
    // The size, in points, of all text printed after this call. Raises 482 to 484.
    virtual void FontSize(int points) = 0;
    // The left edge of the text in the current document, in twips (1/1440 inch).
    virtual void LeftEdge(double twips) = 0;
    // Shows the system's printer dialog (a PDF file counts as a printer). Raises 32755 when it is cancelled.
    virtual void ShowPrinter() = 0;
    // Prints text and a line break; line breaks inside the text begin new lines, runs of blanks stay. An
    // error ends the document: what was sent before it comes out.
    virtual void Print(std::string_view text) = 0;
    // Ends the document and sends it.
    virtual void EndDoc() = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    virtual Date Today() const = 0;
};

class RandomSource {
  public:
    virtual ~RandomSource() = default;
    // Starts a new sequence. Two calls never give the same one, even if the clock has not moved between them.
    virtual void Randomize() = 0;
    // From 0 up to but not including 1.
    virtual double Rnd() = 0;
};

// Finds and starts other programs of the desktop.
class SystemTools {
  public:
    virtual ~SystemTools() = default;
    // The path of the program with this name, if it can be started.
    virtual std::optional<std::string> Find(std::string_view name) const = 0;
    // Starts it without waiting. Raises 53 when it can't be started.
    virtual void Start(const std::string& path) = 0;
};

struct Services {
    Dialogs& dialogs;
    Printer& printer;
    Clock& clock;
    RandomSource& random;
    SystemTools& tools;
    Dao::Engine& engine;
};

}  // namespace sorvane
