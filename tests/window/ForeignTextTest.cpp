// Text that comes from another program.

#include "person/DialogRun.h"
#include "tests/ScratchFile.h"

#include <cstdio>
#include <cstring>

#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>

namespace {

/// The other program, running from a file with the text that it offers.
class ForeignSource {
public:
    explicit ForeignSource(const std::string &text) : m_text(text) {
        const std::string command = std::string("exec " FOREIGN_SOURCE " <") + m_text.path();
        m_output = popen(("echo $$; " + command).c_str(), "r");
        m_process = std::atoi(line().c_str());
        waitFor("ready");
    }

    ~ForeignSource() {
        kill(m_process, SIGTERM);
        pclose(m_output);
    }

    ForeignSource(const ForeignSource &) = delete;
    ForeignSource &operator=(const ForeignSource &) = delete;

    void waitFor(const std::string &wanted) {
        for (std::string said = line(); said != wanted; said = line()) {
            if (said.empty()) {
                throw GivenUp("the other program ended before it said " + wanted);
            }
        }
    }

    static wxPoint place() { return {1200, 180}; }

private:
    std::string line() {
        char text[100] = "";
        if (fgets(text, sizeof text, m_output) == nullptr) {
            return {};
        }
        return std::string(text, strcspn(text, "\n"));
    }

    ScratchFile m_text;
    FILE *m_output;
    int m_process;
};

} // namespace

TEST(ForeignText, IsWrittenIntoTheRowAsGiven) {
    const ScratchFile file("HOLE,FROM\n");
    DialogRun run;
    run.fileName = file.path();
    run.appColumns = {"hole", "from"};
    const std::string texts[] = {"From elsewhere", "Not used", "plong\xC3\xA9\x65 (\xC2\xB0)",
                                 std::string(1 << 20, 'x'), "first\nsecond\nthird"};
    const auto drop = [&run](const std::string &text) {
        EXPECT_TRUE(run.show([&text](Person &person) {
            ForeignSource source(text);
            person.moveTo(ForeignSource::place());
            person.press();
            // Another program has a threshold for its drags.
            for (int step = 1; step <= 20; ++step) {
                person.moveTo(ForeignSource::place() - wxSize(step, 0));
            }
            person.moveTo(Person::matchRow(0));
            person.moveTo(Person::matchRow(0) + wxSize(1, 0));
            source.waitFor("accepted");
            person.release();
            source.waitFor("over");
            pressOk(person);
        }));
        return run.matches[0];
    };
    for (const std::string &text : texts) {
        EXPECT_EQ(drop(text), text == "Not used" ? "" : text);
    }
    // The toolkit hands no empty text over: the row keeps what it had.
    EXPECT_EQ(drop(""), "HOLE");
}
