// How a routine that touches the store fails: one error tail for all, and the sentences that differ. And how
// one that writes is all or nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/Global.h"
#include "shell/StoreTable.h"

namespace sorvane {

inline constexpr std::string_view ErrorTitle = "ERROR!";

// What an error tail says. `named` goes before the table's name for error 3011; empty: `unnamed` stands
// alone.
struct ErrorTail {
    std::string_view named = "Unable to open ";
    std::string_view unnamed = {};     // the sentence for 3011 where no table is named
    bool oneSentence = false;          // `unnamed` stands for every error, not for 3011 alone
    bool silentWithoutTable = false;   // 3011 is passed over
    std::string_view conversion = {};  // the sentence for 3421, where it has one of its own
};

namespace Tails {
// Readers, writers, deletion.
inline constexpr ErrorTail Open{};
// Making the file and looking for it: no table is named there.
inline constexpr ErrorTail CheckDatabase{
    .unnamed = "Unexpected error occurred. Please advise error number to support."};
inline constexpr ErrorTail Probe{.silentWithoutTable = true};
// The creators' three forms differ on purpose.
inline constexpr ErrorTail CreateSpent{.named = "Unable to create "};
inline constexpr ErrorTail CreateWinnings{
    .unnamed = "Unable to create table. Please advise error number to support."};
inline constexpr ErrorTail Create{.named = " Unable to create "};
inline constexpr ErrorTail CreateIndex{
    .unnamed = " Unable to create index. Please advise error number to support.", .oneSentence = true};
inline constexpr ErrorTail Ledger{.conversion = "Please enter a valid amount and try again."};
}  // namespace Tails

// Shows the box of the tail for an error number: "ERROR #", the number, a line break, the sentence; title
// "ERROR!", stop icon. `TableName` is the name in force when the error came. Shows nothing where the tail is
// silent.
void ShowStoreError(Session& session, const ErrorTail& tail, int number, std::string_view TableName);

// Runs the work of a store routine. An error becomes its box; what was open is closed by then, because the
// work owns it. Returns 0, or the number of the error; the caller goes on with whatever state is left.
template <class Work>
int StoreRoutine(Session& session, const ErrorTail& tail, const std::string& TableName, Work work) {
    const int number = ErrorOf(work);
    if (number != 0) ShowStoreError(session, tail, number, TableName);
    return number;
}

// What the reading and writing routines are told by their caller. TableName may be changed where a routine
// says so.
struct StoreArgs {
    const std::string& DbName;
    std::string& TableName;
    Date WindowDate;

    StoreTable Table() const { return {DbName, TableName}; }
};

// The file of a routine that writes. While it is open nobody else writes; all that is written is one commit,
// made when it closes.
class OwnFile {
  public:
    OwnFile(Session& session, const std::string& DbName) : session_(session), DbName_(DbName) { Open(); }
    Dao::Database& Db() { return *db_; }
    // Raises when the commit fails: then nothing of it is written.
    void Close();
    // Puts a question, with nothing open and no lock while it waits for its answer. What was read before must
    // be read again: anybody may have changed it meanwhile.
    template <class Question>
    auto Ask(Question question) {
        Close();
        const auto answer = question();
        Open();
        return answer;
    }

  private:
    void Open();

    Session& session_;
    const std::string& DbName_;
    std::optional<Dao::Database> db_;
};

// A StoreRoutine that writes: its work gets the OwnFile and is one commit. An error in the middle of the work
// commits what was written before it, then its box comes. The box of a commit that fails, of which nothing is
// left, comes only where no error came before it.
template <class Work>
int WritingRoutine(Session& session, const ErrorTail& tail, const StoreTable& table, Work work) {
    return StoreRoutine(session, tail, table.TableName, [&] {
        OwnFile file(session, table.DbName);
        const int inTheMiddle = ErrorOf([&] { work(file); });
        const int atTheCommit = ErrorOf([&] { file.Close(); });
        if (inTheMiddle != 0) Raise(inTheMiddle);
        if (atTheCommit != 0) Raise(atTheCommit);
    });
}

// The database file of the program: "data/sorvane.mdb" below AppPath, with the platform's separators.
std::string DatabasePath(const std::string& AppPath);

}  // namespace sorvane
