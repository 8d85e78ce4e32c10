// Every routine of the rooms that touches the file, and a program that has just come to it.
#pragma once

#include <functional>
#include <iosfwd>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Lines.h"
#include "reports/ReportStart.h"
#include "reports/ReportTypes.h"
#include "shell/Family.h"
#include "shell/WindowState.h"
#include "support/RecordingChart.h"
#include "support/World.h"

namespace sorvane {

using Texts = std::vector<std::string>;
using Tables = std::map<std::string, Texts>;  // rows in the order of their numbers, and names of indexes

// What a routine works with.
struct Desk {
    Session& session;
    const std::string& DbName;
    WindowState& state;
    LineList& list;
    testing::RecordingChart& chart;

    StoreArgs At() { return {DbName, state.TableName, state.WindowDate}; }
    ReportArgs Report(Family family) { return {family, DbName, state.TableName, state.mode}; }
};

// Dates that the file has rows of, and one that it has none of.
constexpr int OldDay = 40'002, NewDay = 40'100;

// What a second run of the routine leaves: its rows once more, or what one run leaves.
enum class Again { Adds, Same };

struct Routine {
    const char* name;
    Family family;
    std::string_view LottoFlag, ExtraFlag;
    const char* table;
    int day;
    Again again;
    void (*act)(Desk& desk);
    int commits = 1;           // 0: it only reads
    bool fromNothing = false;  // there is no file before
    bool raises = false;       // hands an error to its caller
    bool scratches = false;    // what it leaves in the scratch table is of no use to anybody
    // What may follow from the first error, besides itself.
    std::set<int> consequences = {};
    int tickets = 2;  // on the sheet
};
void PrintTo(const Routine& routine, std::ostream* to);

std::span<const Routine> Routines();

// Answers each question with Yes and keeps the boxes of errors. Some routines show them for as long as the
// cause lasts: it is mended when nobody would read on.
class PatientDialogs final : public Dialogs {
  public:
    static constexpr std::size_t Patience = 6;
    Texts errors;
    std::function<void()> mend;

    Answer MsgBox(std::string_view text, int style, std::string_view title) override {
        if (style == BoxStyle::YesNo) return Answer::Yes;
        if (style == BoxStyle::Stop && title == ErrorTitle) errors.emplace_back(text);
        if (errors.size() % Patience == 0) mend();
        return Answer::Ok;
    }
};

// A file with rows for one routine, and what a run of the routine makes of it.
class RoutineWorld {
  public:
    // What one run showed and left.
    struct Outcome {
        Tables tables;
        Texts shown;     // lines and calls of the chart
        Texts errors;    // boxes
        int raised = 0;  // to the caller
    };

    // Makes the file, unless the routine starts from nothing. `vfs`: the engine's file layer.
    RoutineWorld(const Routine& routine, const std::string& vfs);

    // A program that has just come to the routine.
    void Ready();
    // Runs it, and calls `done` behind it.
    Outcome RunOnce(const std::function<void()>& done);
    // Puts the file back as it was made.
    void Renew() const;
    // All that the file holds, through plain SQLite on a whole disk.
    Tables Content() const { return ContentOf(path); }
    static Tables ContentOf(const std::string& file);

    const Routine& routine;
    testing::World world;
    PatientDialogs dialogs;
    Services services{dialogs, world.printer, world.clock, world.random, world.tools, world.engine};
    sorvane::Session session{world.global, services};
    WindowState state;
    const std::string path = world.DbName();
    std::string fresh;  // the file's bytes as it was made

  private:
    void Fill(const std::string& table);
};

}  // namespace sorvane
