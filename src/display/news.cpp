#include "display/news.h"

#include <utility>

#include "core/state/grid.h"
#include "display/status_panel.h"
#include "display/words.h"
#include "platform/desktop.h"

namespace {

constexpr float SecondsBetweenScores = 15;

bool ComputersPlayEachOther() {
    return IsComputer(1) && IsComputer(2);
}

std::string FieldInWords() {
    return std::to_string(FieldColumns()) + " by " + std::to_string(FieldRows()) + " boxes, " +
           std::to_string(Game.LinesDrawn) + " of " + std::to_string(Game.LineCount) +
           " lines drawn";
}

std::string ScoreInWords() {
    return Game.PlayerName.at(1) + " " + std::to_string(Game.PlayerScore.at(1)) + ", " +
           Game.PlayerName.at(2) + " " + std::to_string(Game.PlayerScore.at(2));
}

// The last line, if it passed the turn and is new. One that took a box was drawn by the player who
// is still to move and knows it.
std::string NewLineOfOther() {
    const bool isTold = Game.LastLine == Game.Told.LastLine || HasBoxBeside(Game.LastLine, 4);
    return isTold ? "" : LineInWords(Game.LastLine);
}

// "Guardian drew across, row 3, column 4, and took 2 boxes".
std::string DeedsOf(int player) {
    const std::string line = player == OtherPlayer(Game.CurrentPlayer) ? NewLineOfOther() : "";
    const int boxes = Game.PlayerScore.at(player) - Game.Told.Score.at(player);
    std::string deeds = line.empty() ? "" : " drew " + line;
    if (boxes > 0)
        deeds += std::string(line.empty() ? "" : ", and") + " took " + BoxesInWords(boxes);
    return deeds.empty() ? "" : Game.PlayerName.at(player) + deeds;
}

void Append(std::string& news, const std::string& sentence) {
    if (sentence.empty())
        return;
    news += (news.empty() ? "" : " ") + sentence;
    if (news.back() != '.')
        news += '.';
}

bool PersonIsToMove() {
    return Game.GameInPlay && !Game.GamePaused && IsPlayer(Game.CurrentPlayer) &&
           !IsComputer(Game.CurrentPlayer);
}

std::string NoGameInWords() {
    return std::string("No game. Ctrl+T starts one") +
           (ComputersPlayEachOther() ? ", Ctrl+P makes you a player." : ".");
}

std::string News() {
    if (Game.BoxCount == 0)
        return NoGameInWords();
    std::string news;
    if (!Game.GameOverShown)
        Append(news, TurnText(Game.CurrentPlayer));
    if (!Game.Told.Field)
        Append(news, FieldInWords());
    else if (!ComputersPlayEachOther())
        for (const int player : {1, 2})
            Append(news, DeedsOf(player));
    if (Game.PlayerScore != Game.Told.Score || Game.GameOverShown)
        Append(news, ScoreInWords());
    if (Game.GameOverShown)
        Append(news, OutcomeText());
    else if (Game.GamePaused)
        Append(news, "GAME PAUSED");
    if (PersonIsToMove() && !std::exchange(Game.KeysTold, true))
        Append(news, "The arrow keys move the ghost line, Space turns it, Return draws it. Home "
                     "tells its place, End how the game stands, Shift with an arrow the next box");
    return news;
}

void Tell(const std::string& text) {
    Game.Told = {.Field = true,
                 .LastLine = Game.LastLine,
                 .GhostLine = Game.GhostLine,
                 .Score = Game.PlayerScore,
                 .Time = SecondsSinceMidnight()};
    Say(text);
}

} // namespace

void TellNews() {
    if (IsListenedTo())
        Tell(News());
}

void TellScoreNowAndThen() {
    if (!IsListenedTo() || !ComputersPlayEachOther() || Game.PlayerScore == Game.Told.Score)
        return;
    const float seconds = SecondsSinceMidnight() - Game.Told.Time;
    if (seconds < 0 || seconds >= SecondsBetweenScores) // or midnight has passed
        Tell(ScoreInWords());
}

std::string StandingInWords() {
    if (Game.BoxCount == 0)
        return NoGameInWords();
    const bool isOver = !Game.GameInPlay && !Game.GamePaused;
    std::string standing;
    if (isOver)
        Append(standing, OutcomeText());
    else if (IsPlayer(Game.CurrentPlayer))
        Append(standing, TurnText(Game.CurrentPlayer));
    if (Game.GamePaused)
        Append(standing, "GAME PAUSED, Ctrl+T goes on");
    Append(standing, ScoreInWords());
    return standing;
}
