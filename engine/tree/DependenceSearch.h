#pragma once

#include <cstdint>
#include <set>
#include <vector>

namespace velmora {

class Expression;

/// A walk from tree to tree along references to equations and constants. Every tree is entered once,
/// so neither circles nor sharing make it long.
class DependenceSearch {
public:
    explicit DependenceSearch(const Expression& sought) : m_sought(sought) {}

    /// Whether the referenced tree is the sought one or leads to it.
    bool leadsToSought(const Expression& referenced);
    /// The same for an equation, whose height adds to that of the tree that calls it.
    bool equationLeadsToSought(const Expression& equation);
    /// Whether any reference led back into a tree still being walked.
    bool hasFoundCircle() const { return m_hasFoundCircle; }

private:
    const Expression& m_sought;
    std::set<const Expression*> m_entered;
    std::vector<const Expression*> m_path;
    std::int64_t m_height = 0;
    bool m_hasFoundCircle = false;
};

} // namespace velmora
