#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace velmora {

class Expression;

/// The trees that a tree refers to: the equations that it calls and the constants that it shares.
class References {
public:
    struct Reference {
        std::shared_ptr<const Expression> tree;
        bool isCall; ///< of an equation, which is entered on top of its caller
    };

    void addEquation(std::shared_ptr<const Expression> tree) { add(std::move(tree), true); }
    void addConstant(std::shared_ptr<const Expression> tree) { add(std::move(tree), false); }
    const std::vector<Reference>& list() const { return m_list; }

private:
    void add(std::shared_ptr<const Expression> tree, bool isCall) {
        if (tree != nullptr) {
            m_list.push_back({std::move(tree), isCall});
        }
    }

    std::vector<Reference> m_list;
};

/// A walk from tree to tree along references. Every tree is entered once, so sharing does not make it long;
/// its path is kept in memory of its own, so no chain exhausts the stack.
class DependenceSearch {
public:
    /// Walks everything that the tree leads to.
    explicit DependenceSearch(const Expression& start);

    /// Whether the walk was led to that tree.
    bool leadsTo(const Expression& tree) const;
    /// Whether it was led back into a tree that it came through, or to a constant that refers to itself.
    bool hasFoundCircle() const { return m_hasFoundCircle; }
    /// Whether more equations stand one inside the other than an evaluation can enter. Without a circle only.
    bool isTooHigh() const;

private:
    /// The equations entered one inside the other below a tree: their heights added up, and their number.
    struct Depth {
        std::int64_t height = 0;
        std::int64_t calls = 0;
        void include(const References::Reference& reference, const Depth& below);
    };
    struct Found {
        Depth depth;
        bool isOnPath = true;
        bool isReferredTo = false;
    };
    struct Place;

    std::map<const Expression*, Found> m_found;
    Depth m_depth;
    bool m_hasFoundCircle = false;
};

} // namespace velmora
