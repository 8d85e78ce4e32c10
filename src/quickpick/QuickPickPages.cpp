#include "quickpick/QuickPickPages.h"

#include "platform/Text.h"

namespace sorvane {

namespace {

constexpr int Points = 12;

// Prints the lines of the page one after the other; `sent` tells whether any went out.
void PrintLines(Session& session, const Array<std::string>& quickPicks, const Integer& ticketCount,
                bool& sent) {
    const auto line = [&](std::string_view text) {
        session.services.printer.Print(text);
        sent = true;
    };
    for (int i = 0; i < 6; ++i) line("");
    line("              Sorvane");
    line("");
    line("              Quick Pick Generator - " + session.global.LottoFlag);
    line("        ========================================================");
    for (int i = 0; i < 2; ++i) line("");
    for (int i = 0; i < ticketCount; ++i) line("      Ticket #" + Str(i + 1) + " - " + quickPicks(i));
}

// Shows the box of a printer error; false for any other.
bool ShowPrinterError(Session& session, int number) {
    Global& g = session.global;
    if (number == ErrorNumber::PrinterError)
        g.Msg = "A Printer Error has occurred. Please check your printer" + g.NL + "and try again.";
    else if (number == ErrorNumber::PrinterProperty) g.Msg = "Printer driver does not support the property.";
    else if (number == ErrorNumber::PrinterDriver) g.Msg = "Printer driver unavailable.";
    else return false;
    session.services.dialogs.MsgBox(g.Msg, BoxStyle::Ok, "PRINTER ERROR!");
    return true;
}

// One statement; false when the routine ends with it.
template <class Statement>
bool GoesOn(Session& session, Statement statement) {
    const int number = ErrorOf(statement);
    return number == 0 || ShowPrinterError(session, number);
}

}  // namespace

void PrintQuickPicks(Session& session, const Array<std::string>& quickPicks, const Integer& ticketCount) {
    Printer& printer = session.services.printer;
    printer.FontSize(Points);
    bool sent = false;
    const int number = ErrorOf([&] { PrintLines(session, quickPicks, ticketCount, sent); });
    if (number == 0) return printer.EndDoc();
    // A printer that fails has ended the document itself.
    const bool byPrinter = number >= ErrorNumber::PrinterError && number <= ErrorNumber::PrinterDriver;
    if (sent && !byPrinter) ErrorOf([&] { printer.EndDoc(); });
    Raise(number);
}

void PrintTickets(Session& session, const Array<std::string>& quickPicks, const Integer& ticketCount) {
    Printer& printer = session.services.printer;
    if (!GoesOn(session, [&] { printer.FontSize(Points); })) return;
    if (!GoesOn(session, [&] { printer.ShowPrinter(); })) return;
    GoesOn(session, [&] { PrintQuickPicks(session, quickPicks, ticketCount); });
}

}  // namespace sorvane
