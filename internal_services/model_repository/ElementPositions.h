#ifndef ZEF_ELEMENT_POSITIONS_H
#define ZEF_ELEMENT_POSITIONS_H

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Poco {
namespace XML {
class Node;
} // namespace XML
} // namespace Poco

namespace ZefModelRepositoryService {

/// The line and column of every element of one parsed document: noted in
/// the order the reader meets the start tags while the document is built,
/// then given to the elements in one walk of the finished document, whose
/// elements stand in the same order.
class ElementPositions {
public:
    /// Where a start tag begins: line and column counted from 1.
    struct Position {
        uint32_t line = 0;
        uint32_t column = 0;
    };

    /// Notes the start tag of the next element of the document.
    void noteStartTag(uint32_t line, uint32_t column) { _noted.push_back(Position{line, column}); }

    /// Gives the noted positions to the elements below `document`, in
    /// document order. Elements beyond the noted ones get none (a document
    /// not built from the noted start tags).
    void assignTo(const Poco::XML::Node* document);

    /// The position of an element of the document; 0/0 when not known.
    Position positionOf(const Poco::XML::Node* element) const;

    /// Forgets everything, for the next document.
    void clear();

private:
    // The positions by element are kept in an open-addressed table of at
    // least twice as many slots as elements: a model file has tens of
    // thousands of elements, and a node-based map would cost an allocation
    // for each of them.
    struct Slot {
        const Poco::XML::Node* element;
        Position position;
    };
    static size_t slotOf(const Poco::XML::Node* element, size_t mask);

    std::vector<Position> _noted;
    std::vector<Slot> _slots;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ELEMENT_POSITIONS_H
