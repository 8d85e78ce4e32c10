#include "quickpick/QuickPickPages.h"

#include "platform/Text.h"

namespace sorvane {

namespace {

constexpr int Points = 12;

// Prints the lines of the page one after the other; `sent` tells whether any went out.
void PrintLines(Run& run, const Array<std::string>& quickPicks, const Integer& ticketCount, bool& sent) {
    const auto line = [&](std::string_view text) {
        run.services.printer.Print(text);
        sent = true;
    };
    for (int i = 0; i < 6; ++i) line("");
    line("              Sorvane");
    line("");
    line("              Quick Pick Generator - " + run.global.LottoFlag);
    line("        ========================================================");
    for (int i = 0; i < 2; ++i) line("");
    for (int i = 0; i < ticketCount; ++i) line("      Ticket #" + Str(i + 1) + " - " + quickPicks(i));
}

// Shows the box of a printer error; false for any other.
bool ShowPrinterError(Run& run, int number) {
    Global& g = run.global;
    if (number == ErrorNumber::PrinterError)
        g.Msg = "A Printer Error has occurred. Please check your printer" + g.NL + "and try again.";
    else if (number == ErrorNumber::PrinterProperty) g.Msg = "Printer driver does not support the property.";
    else if (number == ErrorNumber::PrinterDriver) g.Msg = "Printer driver unavailable.";
    else return false;
    run.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, "PRINTER ERROR!");
    return true;
}

// One statement; false when the routine ends with it.
template <class Statement>
bool GoesOn(Run& run, Statement statement) {
    const int number = ErrorOf(statement);
    return number == 0 || ShowPrinterError(run, number);
}

}  // namespace

void PrintQuickPicks(Run& run, const Array<std::string>& quickPicks, const Integer& ticketCount) {
    Printer& printer = run.services.printer;
    printer.FontSize(Points);
    bool sent = false;
    const int number = ErrorOf([&] { PrintLines(run, quickPicks, ticketCount, sent); });
    if (number == 0) return printer.EndDoc();
    if (sent) ErrorOf([&] { printer.EndDoc(); });
    Raise(number);
}

void PrintTickets(Run& run, const Array<std::string>& quickPicks, const Integer& ticketCount) {
    Printer& printer = run.services.printer;
    if (!GoesOn(run, [&] { printer.FontSize(Points); })) return;
    if (!GoesOn(run, [&] { printer.ShowPrinter(); })) return;
    GoesOn(run, [&] { PrintQuickPicks(run, quickPicks, ticketCount); });
}

}  // namespace sorvane
