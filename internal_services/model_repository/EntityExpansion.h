#ifndef ZEF_ENTITY_EXPANSION_H
#define ZEF_ENTITY_EXPANSION_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace ZefModelRepositoryService {

/// The internal entities a document declares, and what their references
/// may cost once expanded. The XML reader expands every reference in full
/// (an attribute value even before anyone sees it), and its own guard only
/// stops at a hundred times the document's size; so the declarations are
/// judged as soon as the document type declaration ends, before any
/// reference in the document's elements is expanded.
class EntityExpansion {
public:
    /// `limit`: the most bytes that entity references may add to the document.
    explicit EntityExpansion(std::uint64_t limit);

    /// Records one internal entity declaration: its name and replacement
    /// text, whose own references ("&name;") are expanded when it is used.
    void declare(const std::string& name, const std::string& value);

    /// Whether any internal entity has been declared.
    bool empty() const { return _entities.empty(); }

    /// Judges the declarations and every reference in the document text
    /// (the whole of it, counted as written): empty when everything stays
    /// within the limit, else why not. A name that is not declared counts
    /// as much as the largest declared entity, since the document's encoding
    /// may spell it differently; in a UTF-16 document every "&" does.
    std::string check(const char* document, std::size_t size);

    /// The fully expanded size of a declared entity (after check()),
    /// saturating just above the limit; 0 for an unknown name.
    std::uint64_t expandedSize(const std::string& name) const;

private:
    struct Entity {
        std::uint64_t length = 0;
        std::vector<std::string> references;
        std::uint64_t expanded = 0;
        int state = 0;  // 0 not sized yet, 1 being sized, 2 sized
    };

    // Sizes every entity without recursion (chains of entities can be long);
    // an entity that refers to itself, directly or not, counts as too large.
    void sizeAll();
    std::uint64_t referenceCost(const std::string& name) const;

    std::uint64_t _limit;
    std::uint64_t _largest = 0;
    std::unordered_map<std::string, Entity> _entities;
    std::vector<std::string> _order;  // names in declaration order, for a stable message
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ENTITY_EXPANSION_H
