#include "ai/pieces.h"

#include <algorithm>
#include <numeric>

#include "base/random.h"

namespace {

int JointCount(const std::vector<Run>& runs) {
    int joints = 0;
    for (const Run& run : runs)
        joints = std::max({joints, run.Ends[0], run.Ends[1]});
    return joints;
}

// Opens one run and takes everything that falls.
class Opening {
public:
    Opening(const std::vector<Run>& runs, int position) : Left(runs), IsGone(runs.size(), false) {
        Take(position);
    }

    std::vector<Run> RunsLeft() const {
        std::vector<Run> left;
        for (std::size_t i = 0; i < Left.size(); ++i)
            if (!IsGone.at(i))
                left.push_back(Left.at(i));
        return left;
    }

private:
    void Take(int position) {
        const Run taken = Left.at(position);
        IsGone.at(position) = true;
        for (const int end : taken.Ends)
            if (end > 0)
                Settle(end);
    }

    // A joint with two ways left is a box of a longer run; one with a single way left falls.
    void Settle(int joint) {
        std::vector<int> ways;
        for (std::size_t i = 0; i < Left.size(); ++i)
            if (!IsGone.at(i))
                for (const int end : Left.at(i).Ends)
                    if (end == joint)
                        ways.push_back(static_cast<int>(i));
        if (ways.size() == 1)
            Take(ways.at(0));
        else if (ways.size() == 2)
            Join(joint, ways.at(0), ways.at(1));
    }

    void Join(int joint, int first, int second) {
        Run& joined = Left.at(first);
        ++joined.Boxes;
        if (first == second) {
            joined.Ends = {Run::Closed, Run::Closed};
            return;
        }
        const Run& other = Left.at(second);
        joined.Boxes += other.Boxes;
        joined.Ends = {FarEnd(joined, joint), FarEnd(other, joint)};
        IsGone.at(second) = true;
    }

    static int FarEnd(const Run& run, int joint) {
        return run.Ends[0] == joint ? run.Ends[1] : run.Ends[0];
    }

    std::vector<Run> Left;
    std::vector<bool> IsGone;
};

// The pieces that runs fall into, each as the positions of its runs.
std::vector<std::vector<int>> MembersOfPieces(const std::vector<Run>& runs) {
    std::vector<int> leader(static_cast<std::size_t>(JointCount(runs)) + 1);
    std::iota(leader.begin(), leader.end(), 0);
    const auto leaderOf = [&](int joint) {
        while (leader.at(joint) != joint)
            joint = leader.at(joint) = leader.at(leader.at(joint));
        return joint;
    };
    for (const Run& run : runs)
        if (run.Ends[0] > 0 && run.Ends[1] > 0)
            leader.at(leaderOf(run.Ends[0])) = leaderOf(run.Ends[1]);

    std::vector<std::vector<int>> pieces;
    std::vector<int> pieceLedBy(leader.size(), -1);
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const int joint = std::max(runs.at(i).Ends[0], runs.at(i).Ends[1]);
        int alone = -1;
        int& piece = joint > 0 ? pieceLedBy.at(leaderOf(joint)) : alone;
        if (piece < 0) {
            piece = static_cast<int>(pieces.size());
            pieces.emplace_back();
        }
        pieces.at(piece).push_back(static_cast<int>(i));
    }
    return pieces;
}

// What a run adds to the signature of the joint at its end `side`.
std::uint64_t SignatureOf(const Run& run, int side, const std::vector<std::uint64_t>& signatures) {
    const int joint = run.Ends.at(side);
    const int far = run.Ends.at(1 - side);
    const std::uint64_t beyond = far > 0 ? signatures.at(far) : 0;
    const std::uint64_t shape = std::uint64_t{2} * run.Boxes + (far == joint ? 1 : 0);
    return MixBits(beyond * 1024 + shape);
}

// For each joint what it looks like from near by; 0 for the joint number 0, which is none.
std::vector<std::uint64_t> JointSignatures(const std::vector<Run>& runs, int joints) {
    constexpr int rounds = 3;
    std::vector<std::uint64_t> signatures(static_cast<std::size_t>(joints) + 1, 1);
    for (int round = 0; round < rounds; ++round) {
        std::vector<std::uint64_t> next(signatures.size(), 0);
        for (const Run& run : runs)
            for (const int side : {0, 1})
                if (const int joint = run.Ends.at(side); joint > 0)
                    next.at(joint) += SignatureOf(run, side, signatures);
        signatures = next;
    }
    return signatures;
}

// Numbers the joints by their signatures, so that most pieces of one shape come out alike however
// they lie on the board.
void RenumberJoints(std::vector<Run>& runs) {
    const int joints = JointCount(runs);
    const std::vector<std::uint64_t> signatures = JointSignatures(runs, joints);
    std::vector<int> order(static_cast<std::size_t>(joints));
    std::iota(order.begin(), order.end(), 1);
    std::ranges::stable_sort(order, {}, [&](int joint) { return signatures.at(joint); });
    std::vector<int> newNumber(signatures.size(), 0);
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

// The runs of one piece, renumbered and sorted.
struct NormalForm {
    NormalForm(const std::vector<Run>& runs, const std::vector<int>& members) {
        std::vector<std::pair<Run, int>> own;
        for (const int member : members)
            Runs.push_back(runs.at(member));
        RenumberJoints(Runs);
        for (std::size_t i = 0; i < members.size(); ++i)
            own.emplace_back(Runs.at(i), members.at(i));
        std::sort(own.begin(), own.end());
        for (std::size_t i = 0; i < own.size(); ++i) {
            Runs.at(i) = own.at(i).first;
            Order.push_back(own.at(i).second);
        }
    }

    std::vector<Run> Runs;
    std::vector<int> Order; // which of the runs given stands at each position
};

// A run from a joint back to it takes the joint with it if a single other run meets it there, and
// then that run as well.
std::vector<Giveaway> FindGiveaways(const std::vector<Run>& runs) {
    std::vector<int> ways(static_cast<std::size_t>(JointCount(runs)) + 1, 0);
    std::vector<int> other(ways.size(), -1); // the last run that comes from somewhere else
    for (std::size_t i = 0; i < runs.size(); ++i)
        for (const int end : runs.at(i).Ends)
            if (end > 0) {
                ++ways.at(end);
                if (runs.at(i).Ends[0] != runs.at(i).Ends[1])
                    other.at(end) = static_cast<int>(i);
            }
    std::vector<Giveaway> giveaways;
    for (const Run& run : runs) {
        Giveaway& given = giveaways.emplace_back();
        given.Boxes = ToInteger(run.Boxes);
        for (const int end : run.Ends)
            given.Joined = ToInteger(given.Joined + (end > 0 && ways.at(end) == 3 ? 1 : 0));
        if (given.Joined == 2 && run.Ends[0] == run.Ends[1]) {
            given.Behind = ToInteger(other.at(run.Ends[0]));
            given.Boxes = ToInteger(run.Boxes + 1 + runs.at(given.Behind).Boxes);
        }
    }
    return giveaways;
}

std::u16string KeyOf(const std::vector<Run>& runs) {
    std::u16string key;
    for (const Run& run : runs) {
        key.push_back(static_cast<char16_t>(run.Boxes));
        for (const int end : run.Ends)
            key.push_back(static_cast<char16_t>(end));
    }
    return key;
}

} // namespace

std::vector<RunPlace> PieceCatalogue::Enter(const std::vector<Run>& runs) {
    std::vector<RunPlace> places(runs.size());
    for (const std::vector<int>& members : MembersOfPieces(runs)) {
        const NormalForm form(runs, members);
        Piece& piece = Intern(form.Runs);
        StepsDone += piece.RunCount();
        for (int position = 0; position < piece.RunCount(); ++position)
            places.at(form.Order.at(position)) = {&piece, position};
    }
    return places;
}

Piece& PieceCatalogue::Intern(const std::vector<Run>& runs) {
    Piece*& known = Known[KeyOf(runs)];
    if (known == nullptr) {
        known = &Pieces.emplace_back();
        known->Runs = runs;
        known->Giveaways = FindGiveaways(runs);
        known->Number = static_cast<int>(Pieces.size());
        known->Code = MixBits(Pieces.size());
    }
    return *known;
}

const Giveaway& PieceCatalogue::Open(RunPlace place) {
    Piece& piece = *place.Of;
    Giveaway& given = piece.Giveaways.at(place.Position);
    if (given.RunChange != 0)
        return given;
    const std::vector<Run> runsLeft = Opening(piece.Runs, place.Position).RunsLeft();
    given.RunChange = ToInteger(static_cast<int>(runsLeft.size()) - piece.RunCount());
    given.CodeChange = -piece.Code;
    std::size_t rests = 0;
    for (const RunPlace& left : Enter(runsLeft))
        if (left.Position == 0) {
            given.Rest.at(rests++) = left.Of;
            given.CodeChange += left.Of->Code;
        }
    StepsDone += piece.RunCount();
    return given;
}
