// The worked examples of the player's guide, done as they stand.
#include "records/RecordsWorld.h"

namespace sorvane::testing {
namespace {

// A fenced block: what stands behind the fence, and its lines.
struct Block {
    std::string kind;
    std::vector<std::string> lines;
};

std::vector<Block> BlocksOf(const std::string& chapter) {
    std::ifstream guide(SORVANE_SOURCE_FOLDER "/docs/user-guide.md");
    std::vector<Block> blocks;
    bool inChapter = false, inBlock = false;
    for (std::string line; std::getline(guide, line);) {
        if (line.rfind("## ", 0) == 0) inChapter = line == "## " + chapter;
        if (!inChapter) continue;
        if (line.rfind("```", 0) == 0) {
            inBlock = !inBlock;
            if (inBlock) blocks.push_back({line.substr(3), {}});
        } else if (inBlock) {
            blocks.back().lines.push_back(line);
        }
    }
    return blocks;
}

// The words of a command as a shell parts them.
std::vector<std::string> WordsOf(const std::string& command) {
    std::vector<std::string> words(1);
    bool quoted = false;
    for (const char letter : command) {
        if (letter == '"') quoted = !quoted;
        else if (letter == ' ' && !quoted) words.emplace_back();
        else words.back() += letter;
    }
    return words;
}

class Guide : public RecordsWorld {
  public:
    Guide() : home_(fs::current_path()) { fs::current_path(world.folder.Path()); }
    ~Guide() override { fs::current_path(home_); }

    // All that it says, in its order.
    std::string Answer(const std::string& command) {
        std::vector<std::string> words = WordsOf(command);
        EXPECT_EQ(words.front(), "sorvane-records");
        words.erase(words.begin());
        std::ostringstream said;
        Records::Outside outside{said, said, false, [this] { return now; }, [this] { return Clock(); }, ""};
        Records::RunCommand(outside, words);
        return said.str();
    }

  private:
    fs::path home_;
};

TEST_F(Guide, EveryExampleDoesWhatIsToldOfIt) {
    int files = 0, commands = 0;
    for (const Block& block : BlocksOf("Bringing your records along")) {
        if (block.kind.rfind("csv ", 0) == 0) {
            std::string text;
            for (const std::string& line : block.lines) text += line + "\n";
            Write(block.kind.substr(4), text);
            ++files;
            continue;
        }
        ASSERT_EQ(block.kind, "console");
        for (std::size_t i = 0; i < block.lines.size();) {
            ASSERT_EQ(block.lines[i].rfind("$ ", 0), 0U) << block.lines[i];
            const std::string command = block.lines[i++].substr(2);
            std::string told;
            for (; i < block.lines.size() && block.lines[i].rfind("$ ", 0) != 0; ++i)
                told += block.lines[i] + "\n";
            EXPECT_EQ(Answer(command), told) << command;
            ++commands;
        }
    }
    EXPECT_EQ(files, 6);
    EXPECT_EQ(commands, 10);
}

// Every command and each of its options is in the manual page, and every command has an example there.
TEST_F(Guide, TheManualPageTellsEveryCommandAndOption) {
    const std::string page = BytesOf(SORVANE_SOURCE_FOLDER "/docs/sorvane-records.1");
    std::string plain;
    for (std::size_t i = 0; i < page.size(); ++i)
        if (page[i] != '\\') plain += page[i];
    for (const char* command :
         {"show", "check", "backup", "restore", "renumber", "export", "import", "draws", "tickets"}) {
        EXPECT_TRUE(Tells(plain, "\n.SS " + std::string(command))) << command;
        EXPECT_TRUE(Tells(plain, "\nsorvane-records " + std::string(command))) << command;
        std::istringstream help(Do({command, "--help"}).data);
        const std::size_t section = plain.find("\n.SS " + std::string(command));
        const std::string told = plain.substr(section, plain.find("\n.S", section + 1) - section);
        for (std::string word; help >> word;) {
            if (const std::size_t end = word.find(','); end != std::string::npos) word = word.substr(end + 1);
            if (word.rfind("--", 0) != 0 || word == "--help" || word == "--data" || word == "--list\"")
                continue;
            EXPECT_TRUE(Tells(told, word)) << command << " " << word;
        }
    }
}

}  // namespace
}  // namespace sorvane::testing
