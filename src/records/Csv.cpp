#include "records/Csv.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "platform/RunTimeError.h"
#include "platform/Text.h"

namespace sorvane::Records {

namespace {

constexpr std::size_t BufferSize = 65'536;
// More than any record has; what is longer has lost a quote.
constexpr std::size_t MostInRecord = 65'536;
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr const char* NoUtf8 = "this is no text in UTF-8";

// The bytes that the character at the start takes; 0 when it is none.
std::size_t LengthOfCharacter(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (byte(0) < 0x80) return 1;
    const std::size_t length = byte(0) >= 0xF0 ? 4 : byte(0) >= 0xE0 ? 3 : 2;
    if (byte(0) < 0xC2 || byte(0) > 0xF4 || text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i)
        if (BeginsCharacter(text[i])) return 0;
    // Longer than needed, halves of a pair, beyond the last character.
    const bool bad = (byte(0) == 0xE0 && byte(1) < 0xA0) || (byte(0) == 0xED && byte(1) > 0x9F) ||
                     (byte(0) == 0xF0 && byte(1) < 0x90) || (byte(0) == 0xF4 && byte(1) > 0x8F);
    return bad ? 0 : length;
}

void TrimEnd(std::string& text) {
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.pop_back();
}

}  // namespace

bool IsUtf8(std::string_view text) {
    const auto isAscii = [](char letter) { return static_cast<unsigned char>(letter) < 0x80; };
    if (std::all_of(text.begin(), text.end(), isAscii)) return true;
    while (!text.empty()) {
        const std::size_t length = LengthOfCharacter(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

CsvReader::CsvReader(const fs::path& path) {
    std::error_code none;
    const fs::file_type type = fs::status(path, none).type();
    if (type == fs::file_type::not_found) Raise(ErrorNumber::StoreFileNotFound);
    if (type != fs::file_type::regular) Raise(ErrorNumber::NoPermission);
    file_.open(path, std::ios::binary);
    if (!file_) Raise(ErrorNumber::NoPermission);
    const auto size = fs::file_size(path, none);
    size_ = none ? 0 : static_cast<double>(size);
    Fill();
    if (std::string_view(buffer_).starts_with(Utf8Mark)) at_ = Utf8Mark.size();
    FindSeparator();
}

void CsvReader::FindSeparator() {
    const std::string_view all(buffer_);
    const std::string_view line = all.substr(at_, all.find_first_of("\r\n", at_) - at_);
    const auto count = [&](char letter) { return std::count(line.begin(), line.end(), letter); };
    for (const char other : {';', '\t'})
        if (count(other) > count(separator_)) separator_ = other;
}

// False at the end of the file.
bool CsvReader::Fill() {
    before_ += at_;
    at_ = 0;
    buffer_.resize(BufferSize);
    file_.read(buffer_.data(), static_cast<std::streamsize>(BufferSize));
    buffer_.resize(static_cast<std::size_t>(file_.gcount()));
    return !buffer_.empty();
}

int CsvReader::Get() {
    const int letter = Peek();
    if (letter == End) return End;
    ++at_;
    if (BeginsCharacter(static_cast<char>(letter))) ++column_;
    return letter;
}

// The bytes before the next stop, as far as they are in the buffer; none at the end of the file.
template <class IsStop>
std::string_view CsvReader::GetUpTo(IsStop isStop) {
    if (Peek() == End) return {};
    const std::string_view rest = std::string_view(buffer_).substr(at_);
    std::size_t size = 0;
    long characters = 0;
    for (; size < rest.size() && !isStop(rest[size]); ++size) characters += BeginsCharacter(rest[size]);
    at_ += size;
    column_ += characters;
    return rest.substr(0, size);
}

void CsvReader::Break(const CsvCell& cell, std::string what) const {
    throw Broken{cell.line, cell.column, std::move(what)};
}

void CsvReader::Take(CsvCell& cell, std::string_view letters) {
    inRecord_ += letters.size();
    if (inRecord_ > MostInRecord)
        Break(cell, cell.quoted ? "the quote that opens here is not closed" : "this line is too long");
    cell.text += letters;
}

bool CsvReader::AtLineEnd() {
    const int letter = Peek();
    return letter == End || letter == '\n' || letter == '\r';
}

void CsvReader::EndLine() {
    const int letter = Get();
    if (letter == '\r' && Peek() == '\n') Get();
    ++line_;
    column_ = 1;
}

void CsvReader::ReadPlain(CsvCell& cell) {
    const auto isStop = [this](char letter) {
        return letter == separator_ || letter == '\n' || letter == '\r' || letter == '\0';
    };
    for (; !AtLineEnd() && Peek() != separator_; Take(cell, GetUpTo(isStop)))
        if (Peek() == '\0') Break(cell, NoUtf8);
    TrimEnd(cell.text);
}

void CsvReader::ReadQuoted(CsvCell& cell) {
    Get();
    cell.quoted = true;
    const auto isStop = [](char letter) {
        return letter == '"' || letter == '\n' || letter == '\r' || letter == '\0';
    };
    for (;;) {
        Take(cell, GetUpTo(isStop));
        const int stop = Peek();
        if (stop == End) Break(cell, "the quote that opens here is not closed");
        if (stop == '\0') Break(cell, NoUtf8);
        if (stop == '"') {
            Get();
            if (Peek() != '"') return;
            Get();
            Take(cell, "\"");
        } else if (AtLineEnd()) {
            EndLine();
            Take(cell, "\n");
        }  // else the buffer ended
    }
}

void CsvReader::ReadCell(CsvCell& cell) {
    while (Peek() == ' ' || (Peek() == '\t' && separator_ != '\t')) Get();
    cell.line = line_;
    cell.column = column_;
    if (Peek() == '"') {
        ReadQuoted(cell);
        // Nothing but blanks belongs between the quote and the separator.
        while (!AtLineEnd() && Peek() != separator_) {
            const int letter = Get();
            if (letter != ' ' && letter != '\t') Break(cell, "the quote that opens here closes too early");
        }
    } else {
        ReadPlain(cell);
    }
    if (!IsUtf8(cell.text)) Break(cell, NoUtf8);
}

bool CsvReader::Next(std::vector<CsvCell>& record) {
    while (Peek() == '\n' || Peek() == '\r') EndLine();
    if (Peek() == End) return false;
    inRecord_ = 0;
    std::size_t count = 0;
    for (bool more = true; more; ++count) {
        if (record.size() == count) record.emplace_back();
        CsvCell& cell = record[count];
        cell.text.clear();
        cell.quoted = false;
        ReadCell(cell);
        more = Peek() == separator_;
        if (more) Get();
        if (count > MostInRecord) Break(cell, "this line is too long");
    }
    record.resize(count);
    EndLine();
    return true;
}

std::string CsvText(std::string_view text) {
    const bool plain = !text.empty() && text.find_first_of(",;\t\"\r\n") == std::string_view::npos &&
                       text.front() != ' ' && text.back() != ' ';
    if (plain) return std::string(text);
    std::string quoted = "\"";
    for (const char letter : text) {
        if (letter == '"') quoted += '"';
        quoted += letter;
    }
    return quoted + '"';
}

}  // namespace sorvane::Records
