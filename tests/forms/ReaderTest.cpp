// Documents to be read.
#include "forms/Reader.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "Fixture.h"
#include "forms/Look.h"
#include "forms/Utf8.h"
#include "support/Palettes.h"
#include "support/TempFolder.h"

namespace sorvane::test {
namespace {

using namespace forms;

constexpr std::string_view Text = R"(# Title

First [there](#second-part), [abroad](https://example.org/) and [beside](beside.md).

## Second part

- An entry

  ![wide](wide.png)

- ![wide](wide.png)

![wide](wide.png)

![small](small.png)

```
one
two
```

Between.

```cpp
int three;
```

```sh
four
```

| a | b |
|---|---|
| 1 | 2 |

### A_b-c (D, 2)!

The end: title.
)";

class Reading : public ::testing::Test {
  protected:
    Reading() {
        Write("guide.md", Text);
        QImage picture(3000, 300, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(ToQt(folder.File("wide.png")));
        picture.scaled(50, 20).save(ToQt(folder.File("small.png")));
        window.LayOut(reader);
        window.resize(700, 300);
    }
    void Write(std::string_view name, std::string_view text) const { std::ofstream(folder / name) << text; }
    void OpenGuide(std::string_view heading = {}) {
        ASSERT_TRUE(reader.Open(folder.File("guide.md"), heading));
        sorvane::test::Open(window);
    }
    // The block that is this text, or begins with a picture where that is asked for.
    QTextBlock Block(const QString& text) const {
        QTextBlock block = reader.document()->begin();
        while (block.isValid() && block.text() != text) block = block.next();
        EXPECT_TRUE(block.isValid()) << qPrintable(text);
        return block;
    }
    QTextBlockFormat Format(const QString& text) const { return Block(text).blockFormat(); }
    // The heading at the upper edge.
    std::string AtTheTop() const {
        return reader.HeadingInView() < 0
                   ? ""
                   : reader.Headings()[static_cast<std::size_t>(reader.HeadingInView())].text;
    }

    TempFolder folder;
    LoggingWindow window;
    Reader reader{"txtGuide"};
    Person person;
};

TEST_F(Reading, LinesStandApartAndChaptersMore) {
    OpenGuide();
    const int margin = Look::Margin(reader), gap = Look::Gap(reader);
    EXPECT_EQ(reader.document()->documentMargin(), margin);
    for (const char* text : {"Title", "Second part", "An entry", "Between.", "The end: title."}) {
        EXPECT_EQ(Format(text).lineHeightType(), QTextBlockFormat::ProportionalHeight) << text;
        EXPECT_EQ(Format(text).lineHeight(), 125) << text;
        EXPECT_EQ(Format(text).background().style(), Qt::NoBrush) << text;
    }
    for (const char* code : {"one", "two", "int three;", "four"}) {
        EXPECT_EQ(Format(code).lineHeightType(), QTextBlockFormat::SingleHeight) << code;
        EXPECT_EQ(Format(code).background().color(), Look::Page(reader.palette())) << code;
        EXPECT_FALSE(Format(code).nonBreakableLines()) << code;
    }
    EXPECT_EQ(Format("Title").topMargin(), 0);
    EXPECT_EQ(Format("Second part").topMargin(), 2 * margin);
    EXPECT_EQ(Format("A_b-c (D, 2)!").topMargin(), 2 * margin);
    // Above the first line of what is one piece of code.
    EXPECT_EQ(Format("int three;").topMargin(), gap);
    EXPECT_EQ(Format("four").topMargin(), gap);
    EXPECT_EQ(Format("two").topMargin(), 0);
    for (auto block = reader.document()->begin(); block.isValid(); block = block.next())
        if (block.text() == QChar(QChar::ObjectReplacementCharacter)) {
            EXPECT_EQ(block.blockFormat().lineHeightType(), QTextBlockFormat::SingleHeight);
        }
}

TEST_F(Reading, TablesHaveThinLinesAndRoomInTheirCells) {
    OpenGuide();
    int tables = 0;
    for (QTextFrame* frame : reader.document()->rootFrame()->childFrames())
        if (const auto* table = qobject_cast<QTextTable*>(frame)) {
            ++tables;
            const QTextTableFormat format = table->format();
            EXPECT_TRUE(format.borderCollapse());
            EXPECT_EQ(format.border(), 1);
            EXPECT_EQ(format.borderStyle(), QTextFrameFormat::BorderStyle_Solid);
            EXPECT_EQ(format.borderBrush().color(), Look::Frame(reader.palette()));
            EXPECT_EQ(format.cellPadding(), Look::Space(reader));
            EXPECT_EQ(format.cellSpacing(), 0);
        }
    EXPECT_EQ(tables, 1);
}

TEST_F(Reading, LinksAloneHaveTheirColour) {
    OpenGuide();
    const auto check = [&] {
        int links = 0;
        for (auto block = reader.document()->begin(); block.isValid(); block = block.next())
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextCharFormat format = piece.fragment().charFormat();
                links += format.isAnchor();
                EXPECT_EQ(format.foreground() == reader.palette().link(), format.isAnchor())
                    << qPrintable(piece.fragment().text());
            }
        EXPECT_EQ(links, 3);
    };
    check();
    reader.setPalette(DarkPalette());
    check();
    EXPECT_EQ(Format("four").background().color(), Look::Page(DarkPalette()));
}

// As wide as the page leaves room for, also within a list; never larger than they are.
TEST_F(Reading, PicturesShrinkToThePage) {
    OpenGuide();
    const double page = reader.viewport()->width() - 2 * Look::Margin(reader);
    std::vector<double> widths;
    for (auto block = reader.document()->begin(); block.isValid(); block = block.next())
        if (block.text() == QChar(QChar::ObjectReplacementCharacter))
            widths.push_back(block.layout()->lineAt(0).naturalTextWidth());
    ASSERT_EQ(widths.size(), 4U);
    const double step = reader.document()->indentWidth();
    EXPECT_NEAR(widths[0], page - step, 1.01);
    EXPECT_NEAR(widths[1], page - 2 * step, 1.01);  // behind the dot
    EXPECT_NEAR(widths[2], page, 1.01);
    EXPECT_NEAR(widths[3], 50, 1.01);
    EXPECT_EQ(reader.horizontalScrollBar()->maximum(), 0);
}

TEST_F(Reading, AShrunkenPictureIsSmooth) {
    QImage stripes(2000, 60, QImage::Format_RGB32);
    for (int x = 0; x < stripes.width(); ++x)
        for (int y = 0; y < stripes.height(); ++y)
            stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    stripes.save(ToQt(folder.File("stripes.png")));
    Write("stripes.md", "![stripes](stripes.png)\n");
    ASSERT_TRUE(reader.Open(folder.File("stripes.md"), {}));
    sorvane::test::Open(window);
    const QImage shown = reader.viewport()->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    int grey = 0;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x) {
            const int light = qGray(shown.pixel(x, y));
            grey += light > 60 && light < 200 ? 1 : 0;
        }
    EXPECT_GT(grey, 1000) << "black and white run together";
}

TEST_F(Reading, HeadingsAreFoundByTheirNamesInLinks) {
    OpenGuide("Second part");
    EXPECT_EQ(AtTheTop(), "Second part");
    ASSERT_EQ(reader.Headings().size(), 3U);
    EXPECT_EQ(reader.Headings()[0].level, 1);
    EXPECT_EQ(reader.Headings()[2].level, 3);
    EXPECT_EQ(reader.Headings()[2].text, "A_b-c (D, 2)!");
    reader.GoTo(2);
    EXPECT_EQ(reader.source().fragment(), "a_b-c-d-2");
    for (const int nowhere : {-1, 3}) {
        reader.GoTo(nowhere);
        EXPECT_EQ(reader.source().fragment(), "a_b-c-d-2") << nowhere;
    }
    reader.GoTo(0);
    EXPECT_EQ(AtTheTop(), "Title");
    EXPECT_EQ(reader.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(reader.CanGoBack());
    ASSERT_TRUE(reader.Open(folder.File("guide.md"), "No such part"));
    EXPECT_EQ(AtTheTop(), "Title");
}

TEST_F(Reading, BeforeTheFirstHeadingNoneIsInView) {
    Write("late.md", "Before.\n\n# Title\n");
    ASSERT_TRUE(reader.Open(folder.File("late.md")));
    EXPECT_EQ(reader.HeadingInView(), -1);
    EXPECT_FALSE(reader.Open(folder.File("none.md")));
    EXPECT_FALSE(reader.Open(folder.Path().string()));
    EXPECT_EQ(reader.Headings().size(), 1U);
}

TEST_F(Reading, ASearchBeginsAnewBehindTheLastPlace) {
    OpenGuide();
    EXPECT_FALSE(reader.FindNext(""));
    EXPECT_FALSE(reader.FindNext("nowhere"));
    EXPECT_FALSE(reader.textCursor().hasSelection());
    std::vector<int> places;
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(reader.FindNext("title"));
        places.push_back(reader.textCursor().selectionStart());
        EXPECT_TRUE(reader.viewport()->rect().contains(reader.cursorRect())) << i;
    }
    EXPECT_EQ(places, (std::vector{0, Block("The end: title.").position() + 9, 0}));
}

TEST_F(Reading, AsksForRoomForItsLines) {
    EXPECT_EQ(reader.sizeHint(),
              QSize(Look::DigitsWidth(reader, 104), 38 * reader.fontMetrics().lineSpacing()));
}

// Whoever follows it is told of each place, and of each document once.
TEST_F(Reading, TellsOfEachPlaceAndOfEachDocumentOnce) {
    Write("beside.md", "# Beside\n");
    int opened = 0, moved = 0;
    reader.OnOpen([&] { ++opened; });
    reader.OnMove([&] { ++moved; });
    OpenGuide();
    EXPECT_EQ(opened, 1);
    moved = 0;
    reader.GoTo(1);
    EXPECT_EQ(opened, 1);
    EXPECT_GT(moved, 0);
    moved = 0;
    reader.verticalScrollBar()->setValue(3);
    EXPECT_EQ(moved, 1);
    EXPECT_EQ(AtTheTop(), "Title");
    reader.Open(folder.File("beside.md"));
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(reader.Headings().size(), 1U);
    reader.GoBack();
    EXPECT_EQ(opened, 3);
    EXPECT_EQ(reader.Headings().size(), 3U);
    EXPECT_EQ(AtTheTop(), "Title");  // as it was left
}

TEST_F(Reading, ALinkLeadsToAHeadingOrADocumentBesideThisOneAndNeverAbroad) {
    Write("beside.md", "# Beside\n");
    OpenGuide();
    const auto follow = [&](const QString& link) {
        QTextCursor caret = reader.document()->find(link);
        ASSERT_FALSE(caret.isNull()) << qPrintable(link);
        caret.setPosition(caret.selectionStart() + 1);
        person.Click(*reader.viewport(), reader.cursorRect(caret).center());
    };
    follow("abroad");
    EXPECT_EQ(reader.Headings().size(), 3U);
    EXPECT_FALSE(reader.CanGoBack());
    follow("there");
    EXPECT_EQ(AtTheTop(), "Second part");
    EXPECT_TRUE(reader.CanGoBack());
    reader.GoTo(0);
    follow("beside");
    ASSERT_EQ(reader.Headings().size(), 1U);
    EXPECT_EQ(AtTheTop(), "Beside");
}

TEST_F(Reading, DocumentsOfOtherKindsAreShownAsTheyStand) {
    Write("plain.txt", "\n# no heading\n*one*  two\n\n");
    ASSERT_TRUE(reader.Open(folder.File("plain.txt")));
    EXPECT_TRUE(reader.Headings().empty());
    EXPECT_EQ(reader.toPlainText().trimmed(), "# no heading\n*one*  two");
    reader.SetText("# none\n*two*");
    EXPECT_EQ(reader.toPlainText(), "# none\n*two*");
}

// The way back is another one only behind the new place.
TEST_F(Reading, TellsOfAPlaceGoneToAgainAndOfTheWayBack) {
    OpenGuide();
    std::vector<bool> back;
    reader.OnMove([&] { back.push_back(reader.CanGoBack()); });
    reader.GoTo(2);
    ASSERT_FALSE(back.empty());
    EXPECT_TRUE(back.back());
    reader.verticalScrollBar()->setValue(0);
    back.clear();
    reader.GoTo(2);
    EXPECT_FALSE(back.empty());
    back.clear();
    reader.GoBack();
    ASSERT_FALSE(back.empty());
    EXPECT_FALSE(back.back());
}

TEST_F(Reading, APictureThatHasBeenSeenIsNotReadAgain) {
    Write("picture.md", "![wide](wide.png)\n");
    ASSERT_TRUE(reader.Open(folder.File("picture.md")));
    sorvane::test::Open(window);
    const auto red = [&] {
        const QImage shown = reader.viewport()->grab().toImage();
        int found = 0;
        for (int y = 0; y < shown.height(); ++y)
            found += shown.pixelColor(shown.width() / 2, y) == QColor(Qt::red);
        return found;
    };
    EXPECT_GT(red(), 10);
    std::filesystem::remove(folder / "wide.png");
    EXPECT_GT(red(), 10);
}

TEST_F(Reading, AHeadingIsAtTheUpperEdgeWhateverTheSizeOfThePage) {
    OpenGuide("Second part");
    const auto isAtTheEdge = [&](const char* heading) {
        const QRectF block = reader.document()->documentLayout()->blockBoundingRect(Block(heading));
        return QTest::qWaitFor(
            [&] { return std::abs(reader.verticalScrollBar()->value() - block.top()) < 1; });
    };
    EXPECT_TRUE(isAtTheEdge("Second part"));
    reader.GoTo(0);
    reader.GoTo(1);
    EXPECT_TRUE(isAtTheEdge("Second part"));
    window.resize(400, 300);
    Person::Settle();
    EXPECT_TRUE(isAtTheEdge("Second part"));
    EXPECT_GT(reader.verticalScrollBar()->value(), 0);
}

TEST_F(Reading, TheFirstHeadingIsFoundAlsoWhereItIsNotAtTheBeginning) {
    std::string text = "Before.\n\n# Late title\n\n";
    for (int i = 0; i < 60; ++i) text += "A line.\n\n";
    Write("late.md", text);
    ASSERT_TRUE(reader.Open(folder.File("late.md"), "Late title"));
    EXPECT_EQ(AtTheTop(), "Late title");
}

TEST_F(Reading, ASearchBeginsAtTheHeadingThatWasGoneTo) {
    OpenGuide();
    reader.GoTo(1);
    EXPECT_TRUE(reader.FindNext("title"));
    EXPECT_EQ(reader.textCursor().selectionStart(), Block("The end: title.").position() + 9);
    ASSERT_TRUE(reader.Open(folder.File("guide.md")));
    EXPECT_TRUE(reader.FindNext("title"));
    EXPECT_EQ(reader.textCursor().selectionStart(), 0);
}

}  // namespace
}  // namespace sorvane::test
