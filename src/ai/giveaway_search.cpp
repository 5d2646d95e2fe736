#include "ai/giveaway_search.h"

#include <algorithm>
#include <limits>

#include "core/state/game_state.h"
#include "platform/desktop.h"

namespace {

constexpr int All = std::numeric_limits<int>::max(); // choices followed

// A step is a position set up, worth about half a microsecond. To follow everything a third of the
// steps has sufficed up to twenty runs, and all of them nearly always up to twenty-four.
constexpr std::size_t MostRunsForEverything = 24;
constexpr long Steps = 400'000;
constexpr long SmallThingsPerStep = 8; // kinds of pieces to copy, runs to look at
constexpr long StepsOnceEverythingWasTooMuch = 100'000;
constexpr long StepsBetweenYields = 4'000;

std::uint64_t MemoryCode(std::uint64_t positionCode, int player, int width) {
    constexpr std::uint64_t playerFactor = 0x9E3779B97F4A7C15U;
    constexpr std::uint64_t widthFactor = 0xD1B54A32D192ED03U;
    return positionCode ^ (playerFactor * (player + 1)) ^ (widthFactor * width);
}

// What a decliner leaves of a run that was given to him.
int BoxesDeclined(const Run& run) {
    return run.IsRing() ? 4 : 2;
}

void KeepSmallest(std::vector<Choice>& choices) {
    int smallest = All;
    for (const Choice& choice : choices)
        smallest = std::min(smallest, choice.Boxes);
    std::erase_if(choices, [=](const Choice& choice) { return choice.Boxes > smallest; });
}

// Keeps `count` choices: first one of each size from the smallest on, then a second one, and so on.
void KeepMostDifferent(std::vector<Choice>& choices, int count) {
    std::stable_sort(choices.begin(), choices.end(),
                     [](const Choice& a, const Choice& b) { return a.Boxes < b.Boxes; });
    for (std::size_t i = 1; i < choices.size(); ++i)
        if (choices.at(i).Boxes == choices.at(i - 1).Boxes)
            choices.at(i).RankInSize = choices.at(i - 1).RankInSize + 1;
    std::stable_sort(choices.begin(), choices.end(),
                     [](const Choice& a, const Choice& b) { return a.RankInSize < b.RankInSize; });
    choices.resize(count);
}

} // namespace

void Position::Add(PieceNumber number, std::uint64_t pieceCode, int count) {
    Code += pieceCode * static_cast<std::uint64_t>(count);
    const auto share =
        std::lower_bound(Shares.begin(), Shares.end(), number,
                         [](const Share& s, PieceNumber wanted) { return s.Piece < wanted; });
    if (share == Shares.end() || share->Piece != number)
        Shares.insert(share, {number, count});
    else if ((share->Count += count) == 0)
        Shares.erase(share);
}

GiveawaySearch::GiveawaySearch(int mover, int opponent) : Kinds{mover, opponent} {}

std::vector<double> GiveawaySearch::Judge(const std::vector<Run>& runs,
                                          const std::vector<int>& candidates) {
    std::vector<RunPlace> places;
    Levels.resize(1);
    for (const PieceNumber number : Catalogue.Enter(runs, &places))
        Levels.at(0).Add(number, Catalogue.At(number).Code, 1);
    std::vector<RunPlace> chosen;
    for (const int candidate : candidates)
        chosen.push_back(places.at(candidate));

    StepsToYield = StepsBetweenYields;
    StepsLeft = Steps;
    if (runs.size() <= MostRunsForEverything) {
        try {
            std::vector<double> margins;
            JudgeEach(chosen, All, margins);
            return margins;
        } catch (const Interruption&) {
            StepsLeft = StepsOnceEverythingWasTooMuch;
        }
    }
    return JudgeWiderAndWider(chosen);
}

// Follows as many choices of each turn as the steps allow. On the largest fields they may not even
// suffice for one choice of each turn behind every candidate: the first ones, which are the
// smallest, must do.
std::vector<double> GiveawaySearch::JudgeWiderAndWider(const std::vector<RunPlace>& candidates) {
    std::vector<double> margins;
    try {
        JudgeEach(candidates, 1, margins);
        for (int width = 2; LeavesOut; width *= 2) {
            std::vector<double> wider;
            JudgeEach(candidates, width, wider);
            margins = wider;
        }
    } catch (const Interruption&) {
        margins.resize(candidates.size(), std::numeric_limits<double>::lowest());
    }
    return margins;
}

void GiveawaySearch::JudgeEach(const std::vector<RunPlace>& candidates, int width,
                               std::vector<double>& margins) {
    Width = width;
    LeavesOut = false;
    for (const RunPlace& place : candidates)
        margins.push_back(ValueOfGiveaway({0, 0}, place));
}

double GiveawaySearch::ValueOf(const Turn& turn) {
    double best = std::numeric_limits<double>::lowest();
    double sum = 0;
    int count = 0;
    for (const Choice& choice : ChoicesOf(turn)) {
        const double value = ValueOfGiveaway(turn, choice.Place);
        best = std::max(best, value);
        sum += choice.Count * value;
        count += choice.Count;
    }
    return KindOf(turn) == ComputerAverage ? sum / count : best;
}

// The choices that are followed.
std::vector<Choice> GiveawaySearch::ChoicesOf(const Turn& turn) {
    std::vector<Choice> choices;
    for (const Position::Share& share : Levels.at(turn.Level).Shares) {
        const Piece& piece = Catalogue.At(share.Piece);
        if (!IsDominated(turn, piece))
            for (int run = 0; run < piece.RunCount(); ++run)
                choices.push_back({piece.Giveaways.at(run).Boxes, {share.Piece, run}, share.Count});
    }
    if (KindOf(turn) == ComputerAverage)
        KeepSmallest(choices);
    if (static_cast<std::size_t>(Width) < choices.size()) {
        KeepMostDifferent(choices, Width);
        LeavesOut = true;
    }
    return choices;
}

// Of lone runs that are played in the same way only the smallest can be best, provided that the
// opponent chooses for the best too: whatever is possible with one is possible with the other.
bool GiveawaySearch::IsDominated(const Turn& turn, const Piece& piece) {
    if (piece.RunCount() > 1 || KindOf(turn) == ComputerAverage ||
        OpponentKindOf(turn) == ComputerAverage)
        return false;
    const std::vector<Position::Share>& shares = Levels.at(turn.Level).Shares;
    return std::any_of(shares.begin(), shares.end(), [&](const Position::Share& share) {
        const Piece& other = Catalogue.At(share.Piece);
        return other.RunCount() == 1 && other.Smallest < piece.Smallest &&
               ArePlayedAlike(other.Runs.at(0), piece.Runs.at(0));
    });
}

// Runs that are declined in the same way; where everything is taken, all are alike.
bool GiveawaySearch::ArePlayedAlike(const Run& smaller, const Run& larger) const {
    const bool someoneDeclines = std::count(Kinds.begin(), Kinds.end(), ComputerCheat) > 0;
    return !someoneDeclines || (smaller.IsRing() == larger.IsRing() && smaller.Boxes > 2);
}

// The row of a run, with the line in it as its player draws it.
double GiveawaySearch::ValueOfGiveaway(const Turn& turn, RunPlace place) {
    const Piece& piece = Catalogue.At(place.Piece);
    const Giveaway& given = piece.Giveaways.at(place.Position);
    const int kind = KindOf(turn);
    const bool isPair = given.Boxes == 2;
    if (kind == Humanoid) {
        const double whole = ValueOfOpening(turn, place, true);
        return isPair ? std::max(whole, ValueOfOpening(turn, place, false)) : whole;
    }
    if (isPair && kind != ComputerAverage)
        return ValueOfOpening(turn, place, true);
    const double own = ValueOfAnyLine(turn, place);
    if (given.Behind < 0)
        return own;
    const double behind = ValueOfAnyLine(turn, {place.Piece, given.Behind});
    const int ownLines = piece.Runs.at(place.Position).LineCount();
    const int linesBehind = piece.Runs.at(given.Behind).LineCount();
    return (ownLines * own + linesBehind * behind) / (ownLines + linesBehind);
}

// The mean over the lines of the run. Two boxes are left whole by one line of three.
double GiveawaySearch::ValueOfAnyLine(const Turn& turn, RunPlace place) {
    const double whole = ValueOfOpening(turn, place, true);
    if (Catalogue.At(place.Piece).Giveaways.at(place.Position).Boxes != 2 ||
        OpponentKindOf(turn) == ComputerAverage || OpponentKindOf(turn) == ComputerIntelligent)
        return whole;
    return (whole + 2 * ValueOfOpening(turn, place, false)) / 3;
}

// `leavesPairWhole` tells, of two boxes, that the line between them was drawn, so that both must be
// taken or neither.
double GiveawaySearch::ValueOfOpening(const Turn& turn, RunPlace place, bool leavesPairWhole) {
    const Piece& piece = Catalogue.At(place.Piece);
    const Giveaway& given = piece.Giveaways.at(place.Position);
    const int taker = 1 - turn.Player;
    const int takerKind = Kinds.at(taker);
    const bool canDecline = given.Boxes > 2 || (given.Boxes == 2 && !leavesPairWhole);
    const bool mustDecline = canDecline && takerKind == ComputerCheat;
    const bool mayDecline = canDecline && takerKind == Humanoid && KindOf(turn) == ComputerCheat;
    if (mustDecline && given.Boxes > 2 && EndsTheGame(turn, place))
        return -given.Boxes;

    const auto valueOfTaking = [&] { return -given.Boxes - ValueAfter(turn, place, taker); };
    const auto valueOfDeclining = [&] {
        const int declined = BoxesDeclined(piece.Runs.at(place.Position));
        return 2 * declined - given.Boxes + ValueAfter(turn, place, turn.Player);
    };
    if (mustDecline)
        return valueOfDeclining();
    if (mayDecline)
        return std::min(valueOfTaking(), valueOfDeclining());
    return valueOfTaking();
}

bool GiveawaySearch::EndsTheGame(const Turn& turn, RunPlace place) {
    const auto& shares = Levels.at(turn.Level).Shares;
    return shares.size() == 1 && shares.front().Count == 1 && Catalogue.RestAfter(place).empty();
}

// The margin for `nextPlayer`, who must give away when what was given in `turn` has been taken.
double GiveawaySearch::ValueAfter(const Turn& turn, RunPlace place, int nextPlayer) {
    if (EndsTheGame(turn, place))
        return 0;
    const std::uint64_t memoryCode = MemoryCode(CodeAfter(turn, place), nextPlayer, Width);
    if (const double* known = Values.Find(memoryCode))
        return *known;
    SetUpAfter(turn, place);
    const double value = ValueOf({turn.Level + 1, nextPlayer});
    Values.Store(memoryCode, value);
    return value;
}

std::uint64_t GiveawaySearch::CodeAfter(const Turn& turn, RunPlace place) {
    std::uint64_t code = Levels.at(turn.Level).Code - Catalogue.At(place.Piece).Code;
    for (const PieceNumber rest : Catalogue.RestAfter(place))
        code += Catalogue.At(rest).Code;
    return code;
}

// Leaves the position in the level behind that of `turn`.
void GiveawaySearch::SetUpAfter(const Turn& turn, RunPlace place) {
    if (static_cast<int>(Levels.size()) == turn.Level + 1)
        Levels.emplace_back();
    Position& after = Levels.at(turn.Level + 1);
    after = Levels.at(turn.Level);
    after.Add(place.Piece, Catalogue.At(place.Piece).Code, -1);
    for (const PieceNumber rest : Catalogue.RestAfter(place))
        after.Add(rest, Catalogue.At(rest).Code, 1);
    CountSteps(1 + static_cast<long>(after.Shares.size()) / SmallThingsPerStep);
}

void GiveawaySearch::CountSteps(long steps) {
    const long all = steps + Catalogue.TakeSteps() / SmallThingsPerStep;
    StepsLeft -= all;
    StepsToYield -= all;
    if (StepsToYield < 0) {
        StepsToYield = StepsBetweenYields;
        YieldToEvents(0);
        if (Game.ProgramEnding || Game.QuitRequested)
            throw Interruption{};
    }
    if (StepsLeft < 0)
        throw Interruption{};
}
