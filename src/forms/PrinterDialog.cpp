#include "forms/PrinterDialog.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

#include "forms/Look.h"
#include "forms/Runtime.h"
#include "forms/Utf8.h"
#include "platform/RunTimeError.h"

namespace sorvane::forms {

namespace {

constexpr double TwipsPerInch = 1440;
constexpr double EdgeTwips = TwipsPerInch / 2;
constexpr int LargestFont = 500;

bool AskTheSystem(QPrinter& printer) {
    QWidget* owner = Runtime::Current().Front();
    const Runtime::Modal level;
    QPrintDialog dialog(&printer, owner);
    dialog.setObjectName(QStringLiteral("CommonDialog1"));
    return dialog.exec() == QDialog::Accepted;
}

QString WithoutBlanksAtItsEnd(QString line) {
    while (line.endsWith(u' ')) line.chop(1);
    return line;
}

}  // namespace

struct PrinterDialog::Document {
    explicit Document(QPrinter& device) : printer(device) {
        printer.setFullPage(true);
        edge = EdgeTwips / TwipsPerInch * printer.resolution();
        y = edge;
        if (!painter.begin(&printer)) Raise(ErrorNumber::PrinterError);
    }
    void PrintLine(const QString& line, int points, double left) {
        painter.setFont(Look::FixedFont(points));
        const QFontMetricsF metrics(painter.font(), &printer);
        if (y + metrics.lineSpacing() > printer.height() - edge) BreakPage();
        painter.save();
        painter.translate(left, y + metrics.ascent());
        const double room = std::max(1.0, printer.width() - left - edge / 2);
        const double width = metrics.horizontalAdvance(WithoutBlanksAtItsEnd(line));
        if (width > room) painter.scale(room / width, 1);
        painter.drawText(QPointF(0, 0), line);
        painter.restore();
        y += metrics.lineSpacing();
    }
    void BreakPage() {
        if (!printer.newPage()) Raise(ErrorNumber::PrinterError);
        y = edge;
    }
    bool Failed() const {
        return printer.printerState() == QPrinter::Error || printer.printerState() == QPrinter::Aborted;
    }

    QPrinter& printer;
    QPainter painter;
    double edge, y;  // device pixels
};

PrinterDialog::PrinterDialog() : PrinterDialog(AskTheSystem) {}
PrinterDialog::PrinterDialog(Chooser chooser) : chooser_(std::move(chooser)), leftEdge_(EdgeTwips) {}
PrinterDialog::~PrinterDialog() = default;

void PrinterDialog::FontSize(int points) {
    if (points < 1 || points > LargestFont) Raise(ErrorNumber::PrinterProperty);
    points_ = points;
}

void PrinterDialog::LeftEdge(double twips) {
    if (twips < 0) Raise(ErrorNumber::PrinterProperty);
    leftEdge_ = twips;
}

QPrinter& PrinterDialog::Device() {
    if (!printer_) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *printer_;
}

// What fails leaves nothing to the next document.
template <class Work>
void PrinterDialog::OrForget(Work work) {
    const int error = ErrorOf(work);
    if (error == 0) return;
    document_.reset();
    leftEdge_ = EdgeTwips;
    Raise(error);
}

void PrinterDialog::ShowPrinter() {
    OrForget([this] {
        QPrinter& device = Device();
        if (!chooser_(device)) Raise(ErrorNumber::DialogCancelled);
        device.setCopyCount(1);
        device.setPrintRange(QPrinter::AllPages);
        device.setPageRanges({});
        CheckDevice();
    });
}

// Where the system has no printer, what is left is a file without a name.
void PrinterDialog::CheckDevice() {
    const bool nameless =
        Device().outputFormat() == QPrinter::PdfFormat && Device().outputFileName().isEmpty();
    if (nameless || !Device().isValid()) Raise(ErrorNumber::PrinterDriver);
}

PrinterDialog::Document& PrinterDialog::InHand() {
    if (!document_) {
        CheckDevice();
        document_ = std::make_unique<Document>(Device());
    }
    return *document_;
}

void PrinterDialog::Print(std::string_view text) {
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\n|\r"));
    OrForget([&] {
        Document& document = InHand();
        const double left = leftEdge_ / TwipsPerInch * Device().resolution();
        for (const QString& line : ToQt(text).split(lineBreak)) document.PrintLine(line, points_, left);
        if (document.Failed()) Raise(ErrorNumber::PrinterError);
    });
}

void PrinterDialog::EndDoc() {
    OrForget([this] { InHand(); });
    const auto document = std::exchange(document_, nullptr);
    leftEdge_ = EdgeTwips;
    if (!document->painter.end() || document->Failed()) Raise(ErrorNumber::PrinterError);
}

}  // namespace sorvane::forms
