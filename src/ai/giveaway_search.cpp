#include "ai/giveaway_search.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <numeric>
#include <span>
#include <tuple>

#include "core/state/game_state.h"
#include "platform/desktop.h"

namespace {

constexpr int FirstRound = 4;
constexpr int RunsOfWideRounds = 16; // left out of those that a round follows everything of
constexpr std::size_t CheapestFollowed = 2;

constexpr long ChoicesPerStep = 16;    // to look through
constexpr long RunsEnteredPerStep = 4; // into the catalogue
constexpr long StepsBetweenYields = 4'000;
constexpr std::size_t OpenedAtOnce = 64; // before the steps of it are counted

constexpr int MostChoices = 1 << 15; // of any field

// What a decliner leaves of a run that was given to him.
int BoxesDeclined(const Run& run) {
    return run.IsRing() ? 4 : 2;
}

} // namespace

void Position::Add(Piece& piece, int times) {
    Code += times > 0 ? piece.Code : -piece.Code;
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
    : Kinds{TraitsOf(mover), TraitsOf(opponent)}, StepsLeft(steps) {}

std::vector<int> GiveawaySearch::Judge(const std::vector<Run>& runs,
                                       const std::vector<int>& candidates) {
    const std::vector<RunPlace> places = Catalogue.Enter(runs);
    for (const RunPlace& place : places)
        if (place.Position == 0)
            Left.Add(*place.Of, 1);
    AllRuns = Left.Runs;
    Values.Clear(Left.Runs);

    const LoneRuns smallest = SmallestLoneRuns();
    std::vector<std::vector<int>> told; // the margins by each round, the last one first
    for (const int candidate : candidates)
        told.push_back({-Box * places.at(candidate).Given().Boxes});
    std::vector<int> order(candidates.size());
    std::iota(order.begin(), order.end(), 0);
    bool isExact = false;
    try {
        for (Round = FirstRound; !isExact; Round += Kinds[1].GivesLeast ? 2 : 1) {
            isExact = Round >= Left.Runs - 1; // all behind the first giveaway
            std::ranges::stable_sort(order, std::greater(), [&](int i) { return told.at(i); });
            for (std::vector<int>& margins : told)
                margins.insert(margins.begin(), Unjudged);
            Turn turn;
            for (const int i : order) {
                const RunPlace place = places.at(candidates.at(i));
                if (!isExact && IsDominated(place, smallest))
                    continue;
                const int margin = told.at(i).front() = ValueOfGiveaway(turn, place);
                turn.Low = std::max(turn.Low, margin - SameAs - 1);
            }
        }
    } catch (const Interruption&) {
        isExact = false;
        if (told.at(order.front()).front() == Unjudged)
            for (std::vector<int>& margins : told)
                margins.erase(margins.begin());
    }
    const std::vector<int> best = *std::ranges::max_element(told);
    const int almostBest = best.front() - SameAs - 1;
    std::vector<int> margins;
    for (const std::vector<int>& own : told)
        margins.push_back(isExact || own == best ? own.front() : std::min(own.front(), almostBest));
    return margins;
}

int GiveawaySearch::ValueOf(Turn turn) {
    const std::size_t first = Followed.size();
    FollowChoices(turn);
    const std::size_t end = Followed.size();
    const bool isAverage = KindOf(turn).GivesLeast;
    int best = Unjudged;
    std::int64_t sum = 0;
    int count = 0;
    for (std::size_t i = first; i < end && best < turn.High; ++i) {
        if (i == first + 1) // where the first is not good enough, all may be asked for
            for (std::size_t next = i; next < end; ++next) {
                Values.Fetch(Left.Code + Catalogue.Open(Followed.at(next).Place).CodeChange);
                if ((next - first) % OpenedAtOnce == 0)
                    CountSteps(0);
            }
        const Choice choice = Followed.at(i);
        const int value = ValueOfGiveaway(turn, choice.Place);
        sum += std::int64_t{choice.Count} * value;
        count += choice.Count;
        best = std::max(best, value);
        if (!isAverage)
            turn.Low = std::max(turn.Low, best);
    }
    Followed.resize(first);
    return isAverage ? static_cast<int>(sum / count) : best;
}

// Appends the choices that are followed, the cheapest first. A lone ring of four is left by a cheat
// to its giver, whose turn it is again: there is nothing better.
void GiveawaySearch::FollowChoices(const Turn& turn) {
    const std::size_t first = Followed.size();
    const bool isAverage = KindOf(turn).GivesLeast;
    const LoneRuns smallest = SmallestLoneRuns();
    for (const auto& [piece, count] : Left.Shares) {
        const Run& run = piece->Runs.front();
        if (run.IsRing() && run.Boxes == 4 && !isAverage && OpponentKindOf(turn).Declines) {
            Followed.resize(first);
            Followed.push_back({{piece, 0}, count});
            return;
        }
        if (IsDominated({piece, 0}, smallest))
            continue;
        for (RunPlace place{piece, 0}; place.Position < piece->RunCount(); ++place.Position) {
            const int number = static_cast<int>(Followed.size() - first);
            Followed.push_back({place, count, MostChoices * CostOf(turn, place) + number});
        }
    }
    const auto choices = std::span(Followed).subspan(first);
    const auto kept = choices.first(std::min(choices.size(), MostFollowed(turn)));
    std::ranges::nth_element(choices, kept.end(), {}, &Choice::Rank);
    std::ranges::sort(kept, {}, &Choice::Rank);
    Followed.resize(first + kept.size());
    const Integer fewest = Followed.at(first).Place.Given().Boxes;
    while (isAverage && Followed.back().Place.Given().Boxes > fewest)
        Followed.pop_back();
}

std::size_t GiveawaySearch::MostFollowed(const Turn& turn) const {
    const bool isWide = AllRuns - Round <= RunsOfWideRounds;
    if (turn.FollowsAll || (isWide && KindOf(turn).GivesLeast))
        return MostChoices;
    return isWide ? CheapestFollowed : 1;
}

// By manner.
GiveawaySearch::LoneRuns GiveawaySearch::SmallestLoneRuns() const {
    LoneRuns smallest{};
    smallest.fill(std::numeric_limits<int>::max());
    for (const Position::Share& share : Left.Shares)
        if (const Run& run = share.Of->Runs.front(); share.Of->RunCount() == 1)
            smallest.at(MannerOf(run)) = std::min(smallest.at(MannerOf(run)), run.Boxes);
    return smallest;
}

// Of lone runs that are played alike only the smallest can be best: whatever is possible with one
// is possible with the other, provided that both players choose for the best.
bool GiveawaySearch::IsDominated(RunPlace place, const LoneRuns& smallest) const {
    const Run& run = place.Opened();
    return !Kinds[1].GivesLeast && place.Of->RunCount() == 1 &&
           run.Boxes > smallest.at(MannerOf(run));
}

// Runs of one manner are declined in the same way; where everything is taken, all are alike.
int GiveawaySearch::MannerOf(const Run& run) const {
    if (run.IsRing() || (!Kinds[0].Declines && !Kinds[1].Declines))
        return 0;
    return run.Boxes > 2 ? 3 : !Kinds[1].IsComputer ? run.Boxes : 1;
}

// What a choice seems to cost. Every run that goes with the one opened, and forces nobody any more,
// is worth two boxes. To a cheat what he will decline goes first, and no more runs than need be. An
// average player does not think of it.
int GiveawaySearch::CostOf(const Turn& turn, RunPlace place) const {
    const Giveaway& given = place.Given();
    if (KindOf(turn).GivesLeast)
        return given.Boxes;
    if (!OpponentKindOf(turn).Declines)
        return given.Boxes - 2 * given.Joined;
    const bool isDeclined = given.Boxes > (KindOf(turn).IsComputer ? 2 : 1);
    return given.Boxes + given.Joined - (isDeclined ? 5 * BoxesDeclined(place.Opened()) : 0);
}

// The row of a run, with the line in it as its player draws it.
int GiveawaySearch::ValueOfGiveaway(const Turn& turn, RunPlace place) {
    const Giveaway& given = place.Given();
    if (!KindOf(turn).IsComputer) {
        const int whole = ValueOfOpening(turn, place, true);
        return given.Boxes != 2 || whole >= turn.High
                   ? whole
                   : std::max(whole, ValueOfOpening(turn, place, false));
    }
    if (given.Boxes == 2 && !KindOf(turn).GivesLeast)
        return ValueOfOpening(turn, place, true);
    int own = ValueOfAnyLine(turn, place);
    if (given.Behind < 0)
        return own;
    const RunPlace placeBehind{place.Of, given.Behind};
    int behind = ValueOfAnyLine(turn, placeBehind);
    if (turn.SideOf(own) != turn.SideOf(behind)) {
        own = ValueOfAnyLine(turn.WithoutBounds(), place);
        behind = ValueOfAnyLine(turn.WithoutBounds(), placeBehind);
    }
    const std::int64_t ownLines = place.Opened().LineCount();
    const std::int64_t linesBehind = placeBehind.Opened().LineCount();
    return static_cast<int>((ownLines * own + linesBehind * behind) / (ownLines + linesBehind));
}

// The mean over the lines of the run. Two boxes are left whole by one line of three.
int GiveawaySearch::ValueOfAnyLine(const Turn& turn, RunPlace place) {
    const KindTraits& taker = OpponentKindOf(turn);
    if (place.Given().Boxes != 2 || (taker.IsComputer && !taker.Declines))
        return ValueOfOpening(turn, place, true);
    const int whole = ValueOfOpening(turn.WithoutBounds(), place, true);
    return (whole + 2 * ValueOfOpening(turn.WithoutBounds(), place, false)) / 3;
}

// `leavesPairWhole` tells, of two boxes, that the line between them was drawn, so that both must be
// taken or neither. A cheat takes what ends the game.
int GiveawaySearch::ValueOfOpening(const Turn& turn, RunPlace place, bool leavesPairWhole) {
    const Giveaway& given = Catalogue.Open(place);
    const KindTraits& taker = OpponentKindOf(turn);
    const bool isLong = given.Boxes > 2;
    const bool isLast = isLong && Left.Runs + given.RunChange == 0;
    const bool mayDecline =
        taker.IsComputer ? taker.Declines && !isLast : KindOf(turn).AllowsAnyLine;
    Turn unlessDeclined = turn;
    int declined = -Unjudged;
    if (mayDecline && (isLong || (given.Boxes == 2 && !leavesPairWhole))) {
        const int margin = 2 * BoxesDeclined(place.Opened()) - given.Boxes;
        declined = ValueAfter(turn, place, Box * margin, turn.Player);
        if (taker.Declines || declined <= turn.Low)
            return declined;
        unlessDeclined.High = std::min(declined, turn.High);
    }
    const int taken = ValueAfter(unlessDeclined, place, -Box * given.Boxes, 1 - turn.Player);
    return std::min(declined, taken);
}

// The margin when `gained` came of what was given in `turn` and it is `nextPlayer` who must give
// away behind it.
int GiveawaySearch::ValueAfter(const Turn& turn, RunPlace place, int gained, int nextPlayer) {
    const int runsLeft = Left.Runs + place.Given().RunChange;
    if (runsLeft == 0)
        return gained;
    const bool isExact = runsLeft <= Round;
    const bool isReply = turn.IsFirst && nextPlayer == 1 && !Kinds[0].Declines;
    const int sign = nextPlayer == turn.Player ? 1 : -1;
    Turn next{nextPlayer, false, isExact || isReply};
    if (!KindOf(next).GivesLeast)
        std::tie(next.Low, next.High) =
            std::minmax({sign * (turn.Low - gained), sign * (turn.High - gained)});
    // Exact values serve every round, others only their own.
    const std::uint32_t kind = 4U * (isExact ? 0 : Round) + 2U * next.FollowsAll + nextPlayer;
    const std::uint64_t code = Left.Code + place.Given().CodeChange;
    Bounds known = Values.At(code, kind);
    if (known.Low >= next.High || known.Low == known.High)
        return gained + sign * known.Low;
    if (known.High <= next.Low)
        return gained + sign * known.High;
    Left.Open(place, 1);
    CountSteps(1 + Left.Runs / ChoicesPerStep);
    const int value = ValueOf(next);
    Left.Open(place, -1);
    if (value > next.Low)
        known.Low = value;
    if (value < next.High)
        known.High = value;
    Values.At(code, kind) = known;
    return gained + sign * value;
}

void GiveawaySearch::CountSteps(long steps) {
    const long before = StepsLeft;
    StepsLeft -= steps + Catalogue.TakeSteps() / RunsEnteredPerStep;
    if (before / StepsBetweenYields != StepsLeft / StepsBetweenYields)
        YieldToEvents(0);
    if (StepsLeft < 0 || Game.ProgramEnding || Game.QuitRequested)
        throw Interruption{};
}
