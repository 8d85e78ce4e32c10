// The printer, behind the system's own dialog.
#pragma once

#include <functional>
#include <memory>

#include "platform/Services.h"

class QPrinter;

namespace sorvane::forms {

class PrinterDialog final : public Printer {
  public:
    // Sets the printer up (device, PDF file, paper); false: cancelled.
    using Chooser = std::function<bool(QPrinter&)>;
    // Chooses by the system's dialog, which offers PDF files too.
    PrinterDialog();
    // Chooses without a dialog, for tests and the tour.
    explicit PrinterDialog(Chooser chooser);
    ~PrinterDialog() override;

    // 1 to 500 points, else 483. Holds until it is set again; 12 at the start.
    void FontSize(int points) override;
    // Counted from the paper's left edge; below 0 raises 483. Half an inch without it, and again behind
    // EndDoc and behind an error.
    void LeftEdge(double twips) override;
    // What is asked there of copies and pages is not used: one copy of all pages is printed. Raises 32755
    // when cancelled, 484 when there is no such printer.
    void ShowPrinter() override;
    // Begins the document if need be (on the default printer when ShowPrinter wasn't called). A line too wide
    // for the paper is never cut: it alone is set condensed, without regard to blanks at its end. Raises 484
    // without a printer, 482 when it fails. An error ends the document: what was sent before it
    // comes out.
    void Print(std::string_view text) override;
    // Without any Print before: an empty page. Raises like Print.
    void EndDoc() override;

  private:
    struct Document;
    template <class Work>
    void OrForget(Work work);
    Document& InHand();
    QPrinter& Device();
    void CheckDevice();

    Chooser chooser_;
    int points_ = 12;
    double leftEdge_;
    std::unique_ptr<QPrinter> printer_;
    std::unique_ptr<Document> document_;
};

}  // namespace sorvane::forms
