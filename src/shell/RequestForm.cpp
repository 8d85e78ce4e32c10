#include "shell/RequestForm.h"

#include <algorithm>
#include <cstddef>

#include "platform/Text.h"
#include "shell/Deployment.h"

namespace sorvane {

namespace {

constexpr int Points = 12;
constexpr int BlankLines = 6;
constexpr std::size_t LineWidth = 75;
constexpr std::string_view NL = "\r\n";

void PrintBlankLines(Printer& printer, int count) {
    for (int i = 0; i < count; ++i) printer.Print("");
}

std::string Head() {
    std::string text = "Thank you for your request. If we get enough requests for your lottery";
    for (const std::string_view line :
         {"we will add it to the program.", "", "Please mail this form to:", ""})
        text.append(NL).append(line);
    for (const std::string_view line : Deployment::Address) text.append(NL).append("     ").append(line);
    return text;
}

std::string Line(std::string_view label, std::string_view content) {
    return std::string(label).append(content);
}

std::string QuestionLine(std::string_view question, RequestForm::Answered answered) {
    if (answered == RequestForm::Answered::Neither) return {};
    return Line(question, answered == RequestForm::Answered::Yes ? "Yes" : "No");
}

// A text by characters: each element begins at the first byte of one.
class Characters {
  public:
    explicit Characters(std::string_view text) : text_(text) {
        for (std::size_t at = 0; at < text.size(); ++at)
            if (BeginsCharacter(text[at])) starts_.push_back(at);
    }
    std::size_t Count() const { return starts_.size(); }
    bool Is(std::size_t at, char character) const { return text_[starts_[at]] == character; }
    std::string From(std::size_t from, std::size_t count) const {
        const std::size_t end = from + count < Count() ? starts_[from + count] : text_.size();
        return std::string(text_.substr(starts_[from], end - starts_[from]));
    }

  private:
    std::string_view text_;
    std::vector<std::size_t> starts_;
};

// Where the line that begins at `first` ends, when `end` is as far as its width reaches.
std::size_t EndOfLine(const Characters& text, std::size_t first, std::size_t end) {
    const auto ends = [&] { return end == text.Count() || (end > first && text.Is(end - 1, ' ')); };
    while (!ends()) ++end;
    // A new paragraph loses its first two characters to the line before it: a slip that stays.
    constexpr std::size_t BehindReturn = 4;
    for (std::size_t at = first; at < end; ++at)
        if (text.Is(at, '\r')) return std::min(at + BehindReturn, text.Count());
    return end;
}

}  // namespace

void PrintRequestForm(Printer& printer, const RequestForm& form) {
    printer.FontSize(Points);
    PrintBlankLines(printer, BlankLines);
    printer.Print(Head());
    PrintBlankLines(printer, BlankLines);
    printer.Print(Line("Name of Lottery: ", form.NameOfLottery));
    printer.Print(Line("Country: ", form.Country));
    printer.Print(Line("Province/State: ", form.ProvinceState));
    printer.Print(Line("Number 0f #'s: ", form.NumberOfNumbers));
    printer.Print(Line("Low Number: ", form.Low));
    printer.Print(Line("High Number: ", form.High));
    printer.Print(QuestionLine("Bonus Number = ", form.BonusNumber));
    printer.Print(QuestionLine("Bonus Tickets = ", form.BonusTicket));
    if (form.BonusTicket == RequestForm::Answered::Yes)
        printer.Print(Line("Number of Bonus Tickets/Played Ticket = ", form.NumberOfBonusTickets));
    printer.Print(Line("Cost per Ticket Played = $", form.CostPerTicket));
    PrintBlankLines(printer, 2);
    for (const std::string& line : WrapAdditionalInfo(form.AdditionalInfo)) printer.Print(line);
    printer.EndDoc();
}

std::vector<std::string> WrapAdditionalInfo(std::string_view info) {
    if (info.empty()) return {""};
    const Characters text(info);
    std::vector<std::string> lines;
    std::size_t from = 0;
    while (from < text.Count()) {
        std::size_t first = from;
        while (first < text.Count() && text.Is(first, ' ')) ++first;
        if (first == text.Count()) break;
        const std::size_t width = std::min(from + LineWidth, text.Count());
        first = std::min(first, width);
        const std::size_t length = EndOfLine(text, first, width) - first;
        lines.push_back(text.From(first, length));
        from += length;
    }
    return lines;
}

}  // namespace sorvane
