// Comma-separated values as RFC 4180 has them, and as other tools write them.
#pragma once

#include <cstddef>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "records/Outside.h"

namespace sorvane::Records {

struct CsvCell {
    std::string text;
    bool quoted = false;  // an empty cell in quotes is an empty text, one without is nothing
    long line = 0;        // where it begins, from 1
    long column = 0;      // in characters, from 1
};

// Reads a file record by record, in memory that does not grow with it. Lines end with LF, CR LF or CR; a mark
// of UTF-8 at the start is passed over; lines with nothing on them are, too.
class CsvReader {
  public:
    // What makes the rest of the file unreadable, and where.
    struct Broken {
        long line;
        long column;
        std::string what;
    };

    // A semicolon or a tab parts the cells of a file whose first line holds more of those than commas. Raises
    // 3024 or 3051 when the file can't be opened.
    explicit CsvReader(const fs::path& path);

    // False at the end. Throws Broken: a quote that is never closed, a cell beyond all measure, a NUL, bytes
    // that are no UTF-8.
    bool Next(std::vector<CsvCell>& record);

    // Bytes read, and bytes of the file.
    double Done() const { return static_cast<double>(before_ + at_); }
    double InAll() const { return size_; }

  private:
    static constexpr int End = -1;
    // The next byte, or End.
    int Peek() { return at_ < buffer_.size() || Fill() ? static_cast<unsigned char>(buffer_[at_]) : End; }
    bool Fill();
    int Get();
    template <class IsStop>
    std::string_view GetUpTo(IsStop isStop);
    void ReadCell(CsvCell& cell);
    void ReadPlain(CsvCell& cell);
    void ReadQuoted(CsvCell& cell);
    void Take(CsvCell& cell, std::string_view letters);
    bool AtLineEnd();
    void EndLine();
    void FindSeparator();
    [[noreturn]] void Break(const CsvCell& cell, std::string what) const;

    std::ifstream file_;
    std::string buffer_;
    std::size_t at_ = 0;      // the next byte of the buffer
    std::size_t before_ = 0;  // bytes of the file before those in the buffer
    double size_ = 0;
    char separator_ = ',';
    long line_ = 1;
    long column_ = 1;
    std::size_t inRecord_ = 0;
};

// A cell as it is written: in quotes where it has to be, and where it is an empty text.
std::string CsvText(std::string_view text);

bool IsUtf8(std::string_view text);

}  // namespace sorvane::Records
