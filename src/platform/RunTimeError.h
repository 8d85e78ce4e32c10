// Run-time errors: the numbers and sentences the program shows, and the one form of "go on at the next
// statement".
#pragma once

#include <algorithm>
#include <exception>
#include <initializer_list>
#include <new>
#include <string>
#include <string_view>

namespace sorvane {

// The numbers that the program raises or tests. Those from 3010 to 3421 are the database engine's.
namespace ErrorNumber {
inline constexpr int InvalidProcedureCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int InvalidUseOfNull = 94;
inline constexpr int PrinterError = 482;
inline constexpr int PrinterProperty = 483;
inline constexpr int PrinterDriver = 484;
inline constexpr int TableNotFound = 3011;
inline constexpr int TableExists = 3010;
inline constexpr int IndexNotFound = 3015;
inline constexpr int NoIndexSet = 3019;
inline constexpr int UpdateWithoutEdit = 3020;
inline constexpr int NoCurrentRecord = 3021;
inline constexpr int KeyTaken = 3022;
inline constexpr int StoreFileNotFound = 3024;
inline constexpr int DiskFull = 3026;
inline constexpr int DiskError = 3043;
inline constexpr int NoPermission = 3051;
inline constexpr int NullInKey = 3058;
inline constexpr int SqlTableNotFound = 3078;
inline constexpr int TextTooLong = 3163;
inline constexpr int RecordDeleted = 3167;
inline constexpr int Locked = 3260;
inline constexpr int NoSuchField = 3265;
inline constexpr int NotADatabase = 3343;
inline constexpr int ObjectClosed = 3420;
inline constexpr int Conversion = 3421;
inline constexpr int DialogCancelled = 32755;
}  // namespace ErrorNumber

// The sentence of an error number; "Application-defined or object-defined error" for a number without one.
std::string_view Sentence(int number);

// What a failing statement throws. `what()` is the sentence.
class RunTimeError : public std::exception {
  public:
    explicit RunTimeError(int number) : number_(number) {}
    int Number() const { return number_; }
    const char* what() const noexcept override;

  private:
    int number_;
};

// Throws RunTimeError(number).
[[noreturn]] void Raise(int number);

// Runs one statement and ignores the given errors; any other error is thrown on. True when the statement
// ran to its end.
template <class Statement>
bool Ignoring(std::initializer_list<int> numbers, Statement statement) {
    try {
        statement();
        return true;
    } catch (const RunTimeError& error) {
        if (std::find(numbers.begin(), numbers.end(), error.Number()) == numbers.end()) throw;
        return false;
    }
}

// Runs work; gives 0, or the number of the run-time error that ended it (std::bad_alloc counts as 7).
template <class Work>
int ErrorOf(Work work) {
    try {
        work();
        return 0;
    } catch (const RunTimeError& error) {
        return error.Number();
    } catch (const std::bad_alloc&) {
        return ErrorNumber::OutOfMemory;
    }
}

}  // namespace sorvane
