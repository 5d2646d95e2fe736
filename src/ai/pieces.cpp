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
        if (ways.size() == 1) {
            Take(ways.at(0));
        } else if (ways.size() == 2) {
            Join(joint, ways.at(0), ways.at(1));
        }
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

std::uint64_t MixSignature(std::uint64_t signature) {
    signature = (signature ^ (signature >> 30U)) * 0xBF58476D1CE4E5B9U;
    signature = (signature ^ (signature >> 27U)) * 0x94D049BB133111EBU;
    return signature ^ (signature >> 31U);
}

// What a run adds to the signature of the joint at its end `side`.
std::uint64_t SignatureOf(const Run& run, int side, const std::vector<std::uint64_t>& signatures) {
    const int joint = run.Ends.at(side);
    const int far = run.Ends.at(1 - side);
    const std::uint64_t beyond = far > 0 ? signatures.at(far) : 0;
    const std::uint64_t shape = std::uint64_t{2} * run.Boxes + (far == joint ? 1 : 0);
    return MixSignature(beyond * 1024 + shape);
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
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return signatures.at(a) < signatures.at(b); });
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
    std::vector<std::vector<int>> runsAt(static_cast<std::size_t>(JointCount(runs)) + 1);
    for (std::size_t i = 0; i < runs.size(); ++i)
        for (const int end : runs.at(i).Ends)
            if (end > 0)
                runsAt.at(end).push_back(static_cast<int>(i));
    std::vector<Giveaway> giveaways;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const Run& run = runs.at(i);
        Giveaway& given = giveaways.emplace_back();
        given.Boxes = run.Boxes;
        if (run.Ends[0] <= 0 || run.Ends[0] != run.Ends[1] || runsAt.at(run.Ends[0]).size() != 3)
            continue;
        for (const int other : runsAt.at(run.Ends[0]))
            if (other != static_cast<int>(i))
                given.Behind = other;
        given.Boxes += 1 + runs.at(given.Behind).Boxes;
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

std::vector<PieceNumber> PieceCatalogue::Enter(const std::vector<Run>& runs,
                                               std::vector<RunPlace>* places) {
    std::vector<PieceNumber> pieces;
    if (places != nullptr)
        places->resize(runs.size());
    for (const std::vector<int>& members : MembersOfPieces(runs)) {
        const NormalForm form(runs, members);
        pieces.push_back(Intern(form.Runs));
        StepsDone += static_cast<long>(members.size());
        if (places != nullptr)
            for (std::size_t position = 0; position < form.Order.size(); ++position)
                places->at(form.Order.at(position)) = {pieces.back(), static_cast<int>(position)};
    }
    return pieces;
}

PieceNumber PieceCatalogue::Intern(const std::vector<Run>& runs) {
    const auto [entry, isNew] =
        Numbers.try_emplace(KeyOf(runs), static_cast<PieceNumber>(Pieces.size()));
    if (isNew) {
        Piece& piece = Pieces.emplace_back();
        piece.Runs = runs;
        piece.Giveaways = FindGiveaways(runs);
        piece.Smallest =
            std::min_element(piece.Giveaways.begin(), piece.Giveaways.end(),
                             [](const Giveaway& a, const Giveaway& b) { return a.Boxes < b.Boxes; })
                ->Boxes;
        piece.Code = MixSignature((entry->second + 1) * 0x9E3779B97F4A7C15U);
    }
    return entry->second;
}

const std::vector<PieceNumber>& PieceCatalogue::RestAfter(RunPlace opened) {
    const Piece& piece = Pieces.at(opened.Piece);
    Giveaway& given = Pieces.at(opened.Piece).Giveaways.at(opened.Position);
    if (!given.IsRestKnown) {
        given.IsRestKnown = true;
        given.Rest = Enter(Opening(piece.Runs, opened.Position).RunsLeft());
        StepsDone += piece.RunCount();
    }
    return given.Rest;
}
