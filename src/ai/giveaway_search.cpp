#include "ai/giveaway_search.h"

#include <algorithm>
#include <numeric>

#include "core/state/game_state.h"
#include "platform/desktop.h"

namespace {

constexpr int FirstRound = 4;
constexpr int RoundsApart = 2;
constexpr int FirstRoundOfAllReplies = 18; // before it they cost more than they tell
constexpr int RunsOfWideRounds = 12;       // left out of those that a round follows everything of
constexpr std::size_t CheapestFollowed = 2;
constexpr std::size_t CheapestOfCheatFollowed = 3;

constexpr long KindsOfPiecesPerStep = 8; // to look through for choices
constexpr long RunsPerStep = 4;          // to look at when one of them is opened
constexpr long StepsBetweenYields = 4'000;

static_assert(3 * GiveawaySearch::UsualSteps < 2 * ValueMemory::MostValues); // one a step at most

void KeepSmallest(std::vector<Choice>& choices) {
    const auto boxesOf = [](const Choice& choice) { return choice.Place.Given().Boxes; };
    const Integer smallest = boxesOf(*std::ranges::min_element(choices, {}, boxesOf));
    std::erase_if(choices, [&](const Choice& choice) { return boxesOf(choice) > smallest; });
}

// What a decliner leaves of a run that was given to him.
int BoxesDeclined(const Run& run) {
    return run.IsRing() ? 4 : 2;
}

} // namespace

void Position::Add(Piece& piece, int times) {
    Code = Code + (times > 0 ? piece.Code : -piece.Code);
    Runs += piece.RunCount() * times;
    const auto numberOf = [](const Share& s) { return s.Of->Number; };
    const auto share = std::ranges::lower_bound(Shares, piece.Number, {}, numberOf);
    if (share == Shares.end() || share->Of != &piece)
        Shares.insert(share, {&piece, times});
    else if ((share->Count += times) == 0)
        Shares.erase(share);
}

void Position::Open(RunPlace place, int times) {
    Add(*place.Of, -times);
    for (Piece* rest : place.Given().Rest)
        if (rest != nullptr)
            Add(*rest, times);
}

GiveawaySearch::GiveawaySearch(int mover, int opponent, long steps)
    : Kinds{mover, opponent}, Catalogue(!HasKind(ComputerCheat) && !HasKind(ComputerAverage)),
      StepsLeft(steps) {}

std::vector<double> GiveawaySearch::Judge(const std::vector<Run>& runs,
                                          const std::vector<int>& candidates) {
    const std::vector<RunPlace> places = Catalogue.Enter(runs);
    for (const RunPlace& place : places)
        if (place.Position == 0)
            Left.Add(*place.Of, 1);
    AllRuns = Left.Runs;
    Values.Clear(Left.Runs);

    std::vector<double> margins; // before the first round, what is given at once
    for (const int candidate : candidates)
        margins.push_back(-places.at(candidate).Given().Boxes);
    std::vector<double> marginsBefore;
    std::vector<int> order(candidates.size());
    std::iota(order.begin(), order.end(), 0);
    try {
        for (Round = FirstRound;; Round += RoundsApart) {
            std::ranges::stable_sort(order, {}, [&](int i) { return -margins.at(i); });
            marginsBefore = std::exchange(margins, std::vector(candidates.size(), Unjudged));
            for (const int i : order)
                margins.at(i) = ValueOfGiveaway({}, places.at(candidates.at(i)));
            if (Round >= Left.Runs - 1) // all behind the first giveaway
                return margins;
        }
    } catch (const Interruption&) {
        return margins.at(order.front()) == Unjudged ? marginsBefore : margins;
    }
}

double GiveawaySearch::ValueOf(const Turn& turn) {
    double best = Unjudged;
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

// The choices that are followed. A lone ring of four is left by a cheat to its giver, whose turn it
// is again: there is nothing better.
std::vector<Choice> GiveawaySearch::ChoicesOf(const Turn& turn) {
    std::vector<Choice> choices;
    choices.reserve(Left.Runs);
    const bool isAverage = KindOf(turn) == ComputerAverage;
    const std::array<int, Manners> smallest = SmallestLoneRuns();
    for (const auto& [piece, count] : Left.Shares) {
        const Run& run = piece->Runs.front();
        const bool isAlone = piece->RunCount() == 1;
        if (isAlone && run.IsRing() && run.Boxes == 4 && !isAverage &&
            OpponentKindOf(turn) == ComputerCheat)
            return {{{piece, 0}, count}};
        if (isAlone && run.Boxes > smallest.at(MannerOf(run)) && !HasKind(ComputerAverage))
            continue;
        for (int position = 0; position < piece->RunCount(); ++position)
            choices.push_back({{piece, position}, count});
    }
    if (isAverage)
        KeepSmallest(choices);
    if (!turn.FollowsAll)
        KeepCheapest(turn, choices);
    for (const Choice& choice : choices)
        Values.Fetch((Left.Code + Catalogue.Open(choice.Place).CodeChange).Mixed());
    return choices;
}

// By manner. Of lone runs that are played alike only the smallest can be best: whatever is possible
// with one is possible with the other, provided that both players choose for the best.
std::array<int, GiveawaySearch::Manners> GiveawaySearch::SmallestLoneRuns() const {
    std::array<int, Manners> smallest{};
    smallest.fill(std::numeric_limits<int>::max());
    for (const Position::Share& share : Left.Shares)
        if (const Run& run = share.Of->Runs.front(); share.Of->RunCount() == 1)
            smallest.at(MannerOf(run)) = std::min(smallest.at(MannerOf(run)), run.Boxes);
    return smallest;
}

// Runs of one manner are declined in the same way; where everything is taken, all are alike.
int GiveawaySearch::MannerOf(const Run& run) const {
    if (run.IsRing() || !HasKind(ComputerCheat))
        return 0;
    return run.Boxes > 2 ? 3 : HasKind(Humanoid) ? run.Boxes : 1;
}

void GiveawaySearch::KeepCheapest(const Turn& turn, std::vector<Choice>& choices) {
    std::size_t count = KindOf(turn) == ComputerCheat ? CheapestOfCheatFollowed : CheapestFollowed;
    if (AllRuns - Round > RunsOfWideRounds || KindOf(turn) == ComputerAverage)
        count = 1;
    std::ranges::stable_sort(choices, {}, [&](const Choice& c) { return CostOf(turn, c.Place); });
    choices.resize(std::min(choices.size(), count));
}

// What a choice seems to cost. Where a cheat leaves boxes and the turn to the giver that is little;
// else every run that goes with the one opened, and forces nobody any more, is worth two boxes.
int GiveawaySearch::CostOf(const Turn& turn, RunPlace place) {
    const Giveaway& given = Catalogue.Open(place);
    CountSteps(0); // for it may have taken long
    if (OpponentKindOf(turn) != ComputerCheat)
        return given.Boxes + 2 * given.RunChange;
    return given.Boxes > 2 ? given.Boxes - 2 * BoxesDeclined(place.Opened()) : given.Boxes;
}

// The row of a run, with the line in it as its player draws it.
double GiveawaySearch::ValueOfGiveaway(const Turn& turn, RunPlace place) {
    const Giveaway& given = place.Given();
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
    const RunPlace placeBehind{place.Of, given.Behind};
    const double behind = ValueOfAnyLine(turn, placeBehind);
    const int ownLines = place.Opened().LineCount();
    const int linesBehind = placeBehind.Opened().LineCount();
    return (ownLines * own + linesBehind * behind) / (ownLines + linesBehind);
}

// The mean over the lines of the run. Two boxes are left whole by one line of three.
double GiveawaySearch::ValueOfAnyLine(const Turn& turn, RunPlace place) {
    const double whole = ValueOfOpening(turn, place, true);
    if (place.Given().Boxes != 2 || OpponentKindOf(turn) == ComputerAverage ||
        OpponentKindOf(turn) == ComputerIntelligent)
        return whole;
    return (whole + 2 * ValueOfOpening(turn, place, false)) / 3;
}

// `leavesPairWhole` tells, of two boxes, that the line between them was drawn, so that both must be
// taken or neither.
double GiveawaySearch::ValueOfOpening(const Turn& turn, RunPlace place, bool leavesPairWhole) {
    const int given = place.Given().Boxes;
    const bool canDecline = given > 2 || (given == 2 && !leavesPairWhole);
    const bool mustDecline = canDecline && OpponentKindOf(turn) == ComputerCheat;
    const bool mayDecline =
        canDecline && OpponentKindOf(turn) == Humanoid && KindOf(turn) == ComputerCheat;
    if (mustDecline && given > 2 && EndsTheGame(place))
        return -given;
    const auto valueOfTaking = [&] { return -given - ValueAfter(turn, place, 1 - turn.Player); };
    const auto valueOfDeclining = [&] {
        return 2 * BoxesDeclined(place.Opened()) - given + ValueAfter(turn, place, turn.Player);
    };
    if (mustDecline)
        return valueOfDeclining();
    if (mayDecline)
        return std::min(valueOfTaking(), valueOfDeclining());
    return valueOfTaking();
}

bool GiveawaySearch::EndsTheGame(RunPlace place) {
    return Left.Runs + Catalogue.Open(place).RunChange == 0;
}

// The margin for `nextPlayer`, who must give away when what was given in `turn` has been taken.
double GiveawaySearch::ValueAfter(const Turn& turn, RunPlace place, int nextPlayer) {
    if (EndsTheGame(place))
        return 0;
    const bool isExact = Left.Runs + place.Given().RunChange <= Round;
    const bool isReply = turn.Level == 0 && nextPlayer == 1 && Kinds[0] != ComputerCheat;
    const bool followsAll = isExact || (isReply && Round >= FirstRoundOfAllReplies);
    // Exact values serve every round, others only their own.
    const std::uint32_t kind = 4U * (isExact ? 0 : Round) + 2U * followsAll + nextPlayer;
    const std::uint64_t code = (Left.Code + place.Given().CodeChange).Mixed();
    if (const float* known = Values.Find(code, kind))
        return *known;
    Left.Open(place, 1);
    CountSteps(1 + static_cast<long>(Left.Shares.size()) / KindsOfPiecesPerStep);
    const double value = ValueOf({turn.Level + 1, nextPlayer, followsAll});
    Left.Open(place, -1);
    Values.Store(code, kind, value);
    return value;
}

void GiveawaySearch::CountSteps(long steps) {
    const long before = StepsLeft;
    StepsLeft -= steps + Catalogue.TakeSteps() / RunsPerStep;
    if (before / StepsBetweenYields != StepsLeft / StepsBetweenYields) {
        YieldToEvents(0);
        if (Game.ProgramEnding || Game.QuitRequested)
            throw Interruption{};
    }
    if (StepsLeft < 0)
        throw Interruption{};
}
