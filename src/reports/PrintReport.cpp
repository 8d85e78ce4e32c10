#include "reports/PrintReport.h"

namespace sorvane {

void PrintReport(Printer& printer, std::string_view text) {
    constexpr int Points = 10;
    constexpr double LeftEdgeInTwips = 1700;
    printer.FontSize(Points);
    printer.LeftEdge(LeftEdgeInTwips);
    printer.ShowPrinter();
    printer.Print(text);
    printer.EndDoc();
}

}  // namespace sorvane
