#include "engine/tree/DependenceSearch.h"

#include "engine/tree/EvaluationBudget.h"
#include "engine/tree/Expression.h"

#include <algorithm>

namespace velmora {

/// A tree being walked.
struct DependenceSearch::Place {
    Place(const Expression& start, Found& itsFound) : found(itsFound) { start.addReferences(references); }

    References references;
    std::size_t next = 0; ///< the reference to be followed next
    Found& found;
};

DependenceSearch::DependenceSearch(const Expression& start) : m_hasFoundCircle(start.holdsRecursion()) {
    std::vector<Place> path;
    path.emplace_back(start, m_found[&start]);
    while (!path.empty()) {
        Place& place = path.back();
        if (place.next > 0) { // back from the reference before
            const References::Reference& former = place.references.list()[place.next - 1];
            place.found.depth.include(former, m_found[former.tree.get()].depth);
        }
        if (place.next == place.references.list().size()) {
            place.found.isOnPath = false;
            path.pop_back();
            continue;
        }
        const Expression& tree = *place.references.list()[place.next].tree;
        ++place.next;
        const auto [known, isNew] = m_found.try_emplace(&tree);
        known->second.isReferredTo = true;
        m_hasFoundCircle = m_hasFoundCircle || tree.holdsRecursion() || (!isNew && known->second.isOnPath);
        if (isNew) {
            path.emplace_back(tree, known->second);
        }
    }
    m_depth = m_found[&start].depth;
}

bool DependenceSearch::leadsTo(const Expression& tree) const {
    const auto known = m_found.find(&tree);
    return known != m_found.end() && known->second.isReferredTo;
}

bool DependenceSearch::isTooHigh() const {
    return m_depth.height > Expression::kMaximumHeight || m_depth.calls > EvaluationBudget::kMostNestedCalls;
}

void DependenceSearch::Depth::include(const References::Reference& reference, const Depth& below) {
    const bool isCall = reference.isCall;
    height = std::max(height, below.height + (isCall ? reference.tree->height() : 0));
    calls = std::max(calls, below.calls + (isCall ? 1 : 0));
}

} // namespace velmora
