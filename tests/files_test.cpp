// Files on a disk that is full, in directories of others, and under a program that is killed.
#include "base/files.h"

#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "support/game_test.h"

namespace {

class Files : public GameTest {
protected:
    void TearDown() override { EXPECT_EQ(seteuid(getuid()), 0); }

    static void ReplaceBy(const std::string& text) { FileReplacement(File).Write(text); }

    static void ReplaceOnFullDisk(const std::string& text) {
        OnFullDisk(text.size() / 2, [&] { EXPECT_THROW(ReplaceBy(text), std::runtime_error); });
    }

    static long CountFiles() { return std::distance(std::filesystem::directory_iterator("."), {}); }

    inline static const std::string File = "game.qbs";
};

TEST_F(Files, AreReplacedWholeOrNotAtAll) {
    std::filesystem::create_symlink("behind.qbs", File);
    ReplaceBy("old");
    chmod("behind.qbs", 0640);
    ReplaceOnFullDisk("longer than before");
    EXPECT_EQ(BytesOf("behind.qbs"), "old");
    EXPECT_EQ(CountFiles(), 2);
    ReplaceBy(std::string(100'000, 'n'));
    EXPECT_EQ(ReadRegularFile("behind.qbs", 65'537), std::string(65'537, 'n'));
    EXPECT_TRUE(std::filesystem::is_symlink(File));
    EXPECT_EQ(static_cast<int>(std::filesystem::status(File).permissions()), 0640);
}

TEST_F(Files, ThatTwoWriteAtOnceAreThoseOfTheSecond) {
    FileReplacement first(File), second(File);
    first.Write("1");
    second.Write("2");
    EXPECT_EQ(BytesOf(File), "2");
    EXPECT_EQ(CountFiles(), 1);
}

TEST_F(Files, AreWrittenOverWhereTheDirectoryTakesNoNewOnes) {
    PutBytes(File, "old");
    constexpr uid_t nobody = 65534; // root may write anywhere
    EXPECT_EQ(chmod(".", 0555), 0);
    EXPECT_TRUE(geteuid() != 0 ||
                (chown(File.c_str(), nobody, nobody) == 0 && seteuid(nobody) == 0));
    ReplaceOnFullDisk("longer than before");
    EXPECT_EQ(BytesOf(File), "old");
    OnFullDisk(18, [] {
        FileReplacement first(File);
        first.Write("longer than before");
        EXPECT_THROW(ReplaceBy("by a second"), std::runtime_error);
    });
    ReplaceBy("shorter");
    ReplaceBy("so long");
    EXPECT_EQ(BytesOf(File), "so long");
    EXPECT_THROW(FileReplacement("other.qbs"), std::runtime_error);
}

// A loop is one of them everywhere; the links of others in a directory for all are on most systems.
TEST_F(Files, AreNotWrittenThroughLinksThatTheSystemDoesNotFollow) {
    std::filesystem::create_symlink(File, File);
    EXPECT_THROW(ReplaceBy("mine"), std::runtime_error);
}

TEST_F(Files, AreWholeWhileCopiesOfTheProgramWriteThemAndAreKilled) {
    const auto whole = [](char letter) { return std::string(1 << 17, letter); };
    ReplaceBy(whole('a'));
    for (int round = 0; round < 10; ++round) {
        pid_t copies[3];
        for (pid_t& copy : copies) {
            copy = fork();
            if (copy == 0)
                prctl(PR_SET_PDEATHSIG, SIGKILL);
            while (copy == 0)
                ReplaceBy(whole(static_cast<char>('a' + (&copy - copies))));
        }
        for (const pid_t copy : copies) {
            const std::string bytes = BytesOf(File);
            EXPECT_TRUE(!bytes.empty() && bytes == whole(bytes.front()));
            kill(copy, SIGKILL);
            waitpid(copy, nullptr, 0);
        }
    }
    ReplaceBy("the last");
    EXPECT_EQ(CountFiles(), 1) << "something is left of the killed";
}

} // namespace
