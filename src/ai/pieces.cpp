#include "ai/pieces.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "base/random.h"

namespace {

// Room for the highest number of a joint, and for none.
std::size_t JointNumbers(const std::vector<Run>& runs) {
    int highest = Run::NoJoint;
    for (const Run& run : runs)
        highest = std::max({highest, run.Ends[0], run.Ends[1]});
    return static_cast<std::size_t>(highest) + 1;
}

// Joins two runs, or the ends of one, at a joint that becomes a box of theirs. None is left in the
// place of the second.
void Join(Run& run, Run& other, int joint) {
    const auto farEnd = [joint](const Run& r) { return r.Ends[r.Ends[0] == joint ? 1 : 0]; };
    ++run.Boxes;
    if (&run == &other) {
        run.Ends = {Run::Closed, Run::Closed};
        return;
    }
    run.Boxes += other.Boxes;
    run.Ends = {farEnd(run), farEnd(other)};
    other = {};
}

// Takes a run and everything that falls with it; none is left in their places. A joint with two
// ways left is a box of a longer run, one with a single way left falls.
void Take(std::vector<Run>& runs, int position) {
    const Run taken = std::exchange(runs.at(position), {});
    for (const int joint : taken.Ends) {
        if (joint <= 0)
            continue;
        std::vector<int> ways;
        for (std::size_t i = 0; i < runs.size(); ++i)
            for (const int end : runs.at(i).Ends)
                if (end == joint)
                    ways.push_back(static_cast<int>(i));
        if (ways.size() == 1)
            Take(runs, ways.at(0));
        else if (ways.size() == 2)
            Join(runs.at(ways.at(0)), runs.at(ways.at(1)), joint);
    }
}

// The pieces that runs fall into, each as the positions of its runs.
std::vector<std::vector<int>> MembersOfPieces(const std::vector<Run>& runs) {
    std::vector<int> leader(runs.size()); // leads to the first run of the piece
    std::iota(leader.begin(), leader.end(), 0);
    const auto leaderOf = [&](int run) {
        while (leader.at(run) != run)
            run = leader.at(run) = leader.at(leader.at(run));
        return run;
    };
    const int count = static_cast<int>(runs.size());
    std::vector<int> firstAt(JointNumbers(runs), count);
    for (int run = 0; run < count; ++run)
        for (const int joint : runs.at(run).Ends)
            if (joint > 0) {
                const int first = firstAt.at(joint) = std::min(firstAt.at(joint), run);
                const auto [lower, higher] = std::minmax({leaderOf(first), leaderOf(run)});
                leader.at(higher) = lower;
            }

    std::vector<std::vector<int>> pieces(runs.size());
    for (int run = 0; run < count; ++run)
        pieces.at(leaderOf(run)).push_back(run);
    std::erase_if(pieces, [](const auto& members) { return members.empty(); });
    return pieces;
}

// For each joint what it looks like from near by; 0 where no run ends.
std::vector<std::uint64_t> JointSignatures(const std::vector<Run>& runs) {
    constexpr int rounds = 3;
    std::vector<std::uint64_t> signatures(JointNumbers(runs), 1);
    signatures[Run::NoJoint] = 0;
    for (int round = 0; round < rounds; ++round) {
        std::vector<std::uint64_t> next(signatures.size(), 0);
        const auto addWay = [&](int joint, int far, int boxes) {
            const std::uint64_t shape = std::uint64_t{2} * boxes + (far == joint ? 1 : 0);
            if (joint > 0)
                next.at(joint) += MixBits(signatures.at(far) * 1024 + shape);
        };
        for (const Run& run : runs) {
            addWay(run.Ends[0], run.Ends[1], run.Boxes);
            addWay(run.Ends[1], run.Ends[0], run.Boxes);
        }
        signatures = std::move(next);
    }
    return signatures;
}

// Numbers the joints by their signatures, so that most pieces of one shape come out alike however
// they lie on the board.
void RenumberJoints(std::vector<Run>& runs) {
    const std::vector<std::uint64_t> signatures = JointSignatures(runs);
    std::vector<int> order(signatures.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, [&](int joint) { return signatures.at(joint); });
    std::vector<int> newNumber(signatures.size(), Run::NoJoint);
    int count = 0;
    for (const int joint : order)
        if (signatures.at(joint) != 0)
            newNumber.at(joint) = ++count;
    for (Run& run : runs) {
        for (int& end : run.Ends)
            if (end > 0)
                end = newNumber.at(end);
        std::sort(run.Ends.begin(), run.Ends.end());
    }
}

// A run from a joint back to it takes the joint with it if a single other run meets it there, and
// then that run as well.
std::vector<Giveaway> FindGiveaways(const std::vector<Run>& runs) {
    std::vector<int> ways(JointNumbers(runs), 0);
    for (const Run& run : runs)
        for (const int end : run.Ends)
            ++ways.at(std::max(end, Run::NoJoint));
    std::vector<Giveaway> giveaways;
    for (const Run& run : runs) {
        Giveaway& given = giveaways.emplace_back(Giveaway{.Boxes = ToInteger(run.Boxes)});
        for (const int end : run.Ends)
            if (end > 0 && ways.at(end) == 3)
                Increase(given.Joined, 1);
        if (given.Joined != 2 || run.Ends[0] != run.Ends[1])
            continue;
        const auto behind = std::ranges::find_if(runs, [&](const Run& other) {
            return other != run && std::ranges::count(other.Ends, run.Ends[0]) > 0;
        });
        given.Behind = ToInteger(static_cast<int>(behind - runs.begin()));
        given.Boxes = ToInteger(run.Boxes + 1 + behind->Boxes);
    }
    return giveaways;
}

std::u16string KeyOf(const std::vector<Run>& runs) {
    std::u16string key;
    for (const Run& run : runs)
        for (const int number : {run.Boxes, run.Ends[0], run.Ends[1]})
            key.push_back(static_cast<char16_t>(number));
    return key;
}

} // namespace

std::vector<RunPlace> PieceCatalogue::Enter(const std::vector<Run>& runs) {
    std::vector<RunPlace> places(runs.size());
    for (const std::vector<int>& members : MembersOfPieces(runs)) {
        std::vector<Run> own;
        for (const int member : members)
            own.push_back(runs.at(member));
        RenumberJoints(own);
        std::vector<std::pair<Run, int>> order;
        for (std::size_t i = 0; i < own.size(); ++i)
            order.emplace_back(own.at(i), members.at(i));
        std::ranges::sort(order);
        std::ranges::transform(order, own.begin(), [](const auto& entry) { return entry.first; });
        Piece& piece = Intern(own);
        StepsDone += piece.RunCount();
        for (int position = 0; position < piece.RunCount(); ++position)
            places.at(order.at(position).second) = {&piece, position};
    }
    return places;
}

Piece& PieceCatalogue::Intern(const std::vector<Run>& runs) {
    Piece& piece = Pieces[KeyOf(runs)];
    if (piece.Runs.empty()) {
        piece.Runs = runs;
        piece.Giveaways = FindGiveaways(runs);
        piece.Number = static_cast<int>(Pieces.size());
        piece.Code = MixBits(Pieces.size());
    }
    return piece;
}

const Giveaway& PieceCatalogue::Open(RunPlace place) {
    Piece& piece = *place.Of;
    Giveaway& given = piece.Giveaways.at(place.Position);
    if (given.RunChange != 0)
        return given;
    std::vector<Run> left = piece.Runs;
    Take(left, place.Position);
    std::erase(left, Run{});
    given.RunChange = ToInteger(static_cast<int>(left.size()) - piece.RunCount());
    given.CodeChange = -piece.Code;
    std::size_t rests = 0;
    for (const RunPlace& run : Enter(left))
        if (run.Position == 0) {
            given.Rest.at(rests++) = run.Of;
            given.CodeChange += run.Of->Code;
        }
    StepsDone += piece.RunCount();
    return given;
}
