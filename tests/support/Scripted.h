// The outside world for tests: services that follow a script and remember what was asked of them.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Date.h"
#include "platform/RunTimeError.h"
#include "platform/Services.h"
#include "platform/SplitMix.h"
#include "support/TempFolder.h"

namespace sorvane::testing {

using sorvane::TempFolder;

// As the style of Expect: no icon, and the buttons that go with the answer (Ok: OK alone; Cancel: OK and
// Cancel; Yes and No: Yes and No).
inline constexpr int StyleByAnswer = -1;
// As the style of Expect: any style that has the button to be pressed.
inline constexpr int AnyStyle = -2;

// Answers boxes from a list of expected ones, in their order. A box that nobody expected, or that differs
// from the next expected one in title, text or style, fails the test with its text and is closed; so does an
// expected box that never came.
class ScriptedDialogs final : public Dialogs {
  public:
    struct Shown {
        std::string title;
        std::string text;
        int style;
        Answer answer;
    };

    ScriptedDialogs() = default;
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;
    ~ScriptedDialogs() override { Verify(); }

    // The next box to come. `hook` runs while it is up, before it is answered ("repair the disk now"); it may
    // expect further boxes.
    ScriptedDialogs& Expect(std::string_view title, std::string_view text, Answer answer = Answer::Ok,
                            int style = StyleByAnswer, std::function<void()> hook = {}) {
        if (style == StyleByAnswer) style = DefaultStyle(answer);
        expected_.push_back({std::string(title), std::string(text), style, answer, std::move(hook)});
        return *this;
    }

    // Fails for each expected box that hasn't come yet, and forgets them.
    void Verify() {
        for (const Expected& box : expected_)
            ADD_FAILURE() << "a box never came: " << Describe(box.title, box.text, box.style);
        expected_.clear();
    }

    // How many expected boxes are still to come.
    std::size_t Remaining() const { return expected_.size(); }

    // All boxes so far, expected or not.
    std::vector<Shown> log;

    Answer MsgBox(std::string_view text, int style, std::string_view title) override {
        const std::size_t entry = log.size();
        log.push_back({std::string(title), std::string(text), style, WayOut(style)});
        if (expected_.empty()) {
            ADD_FAILURE() << "a box that nobody expected: " << Describe(title, text, style);
            return Refuse(style);
        }
        const Expected box = std::move(expected_.front());
        expected_.pop_front();
        if (!Matches(box, title, text, style)) {
            ADD_FAILURE() << "the box that came: " << Describe(title, text, style)
                          << "\n  the expected one: " << Describe(box.title, box.text, box.style);
            return Refuse(style);
        }
        if (box.hook) box.hook();
        log[entry].answer = box.answer;
        return box.answer;
    }

  private:
    struct Expected {
        std::string title;
        std::string text;
        int style;
        Answer answer;
        std::function<void()> hook;
    };

    static int DefaultStyle(Answer answer) {
        if (answer == Answer::Ok) return BoxStyle::Ok;
        return answer == Answer::Cancel ? BoxStyle::OkCancel : BoxStyle::YesNo;
    }
    static int Buttons(int style) { return style & 15; }
    // What the close box of the window answers.
    static Answer WayOut(int style) {
        if (HasButton(style, Answer::Cancel)) return Answer::Cancel;
        return HasButton(style, Answer::Ok) ? Answer::Ok : Answer::No;
    }
    static bool HasButton(int style, Answer answer) {
        const int buttons = Buttons(style);
        const bool asks = buttons == BoxStyle::YesNo || buttons == BoxStyle::YesNoCancel;
        if (answer == Answer::Ok) return !asks;
        if (answer == Answer::Cancel)
            return buttons == BoxStyle::OkCancel || buttons == BoxStyle::YesNoCancel;
        return asks;
    }
    static bool Matches(const Expected& box, std::string_view title, std::string_view text, int style) {
        return box.title == title && box.text == text && (box.style == AnyStyle || box.style == style) &&
               HasButton(style, box.answer);
    }
    static std::string Describe(std::string_view title, std::string_view text, int style) {
        return ::testing::PrintToString(std::string(title)) + ", " +
               ::testing::PrintToString(std::string(text)) +
               (style == AnyStyle ? ", any style" : ", style " + std::to_string(style));
    }
    // Ends a test whose loop shows boxes for ever.
    Answer Refuse(int style) {
        constexpr int TooMany = 50;
        if (++refused_ > TooMany) throw std::logic_error("boxes without end that nobody expects");
        return WayOut(style);
    }

    std::deque<Expected> expected_;
    int refused_ = 0;
};

class FixedClock final : public Clock {
  public:
    explicit FixedClock(Date day) : today(day) {}
    Date Today() const override { return today; }
    Date today;
};

// Random numbers that are the same in every run: Randomize is counted but changes nothing.
class FixedRandom final : public RandomSource {
  public:
    // An endless sequence that the seed determines, on every machine the same.
    explicit FixedRandom(std::uint64_t seed = 1) : mix_(seed) {}
    // These values one after the other, each from 0 up to but not including 1; a draw beyond the last throws
    // std::out_of_range.
    explicit FixedRandom(std::vector<double> values) : values_(std::move(values)), scripted_(true) {}

    void Randomize() override { ++randomized; }
    double Rnd() override {
        if (!scripted_) return mix_.Unit();
        if (drawn_ == values_.size()) throw std::out_of_range("more random numbers drawn than scripted");
        return values_[drawn_++];
    }

    int randomized = 0;

  private:
    SplitMix mix_{0};
    std::vector<double> values_;
    std::size_t drawn_ = 0;
    bool scripted_ = false;
};

// Remembers what was printed, and fails when told to.
class RecordingPrinter final : public Printer {
  public:
    enum class Verb { FontSize, LeftEdge, ShowPrinter, Print, EndDoc };
    struct Line {
        std::string text;
        int fontSize;     // points; 0 where none was told
        double leftEdge;  // twips
    };
    using Document = std::vector<Line>;

    // The documents that were ended, and the lines since then.
    std::vector<Document> documents;
    Document pending;
    // Every verb called, in order, the failing one included.
    std::vector<Verb> calls;

    // The n-th call of this verb from now on (1 the next one) raises `number` and does nothing else.
    void FailAt(Verb verb, int call, int number) { faults_[verb] = {call, number}; }

    // The texts of a document's lines.
    static std::vector<std::string> Texts(const Document& document) {
        std::vector<std::string> texts;
        for (const Line& line : document) texts.push_back(line.text);
        return texts;
    }

    void FontSize(int points) override {
        Called(Verb::FontSize);
        fontSize_ = points;
    }
    void LeftEdge(double twips) override {
        Called(Verb::LeftEdge);
        leftEdge_ = twips;
    }
    void ShowPrinter() override { Called(Verb::ShowPrinter); }
    void Print(std::string_view text) override {
        if (const int error = ErrorOf([this] { Called(Verb::Print); })) {
            if (!pending.empty()) documents.push_back(std::exchange(pending, {}));
            Raise(error);
        }
        for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
            AddLine(text.substr(0, end));
            text.remove_prefix(end + 1);
        }
        AddLine(text);
    }
    void EndDoc() override {
        Called(Verb::EndDoc);
        documents.push_back(std::exchange(pending, {}));
        leftEdge_ = 0;
    }

  private:
    struct Fault {
        int calls;
        int number;
    };
    void Called(Verb verb) {
        calls.push_back(verb);
        const auto fault = faults_.find(verb);
        if (fault != faults_.end() && --fault->second.calls == 0) Raise(fault->second.number);
    }
    void AddLine(std::string_view text) {
        if (!text.empty() && text.back() == '\r') text.remove_suffix(1);
        pending.push_back({std::string(text), fontSize_, leftEdge_});
    }
    std::map<Verb, Fault> faults_;
    int fontSize_ = 0;
    double leftEdge_ = 0;
};

// Finds the programs it was given and remembers which were started.
class RecordingTools final : public SystemTools {
  public:
    std::map<std::string, std::string, std::less<>> programs;  // name to path
    std::vector<std::string> started;                          // paths
    int failure = 0;                                           // number that Start raises, 0 none

    std::optional<std::string> Find(std::string_view name) const override {
        const auto found = programs.find(name);
        if (found == programs.end()) return std::nullopt;
        return found->second;
    }
    void Start(const std::string& path) override {
        if (failure != 0) Raise(failure);
        started.push_back(path);
    }
};

}  // namespace sorvane::testing
