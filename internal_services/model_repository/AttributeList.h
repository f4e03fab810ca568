#ifndef ZEF_ATTRIBUTE_LIST_H
#define ZEF_ATTRIBUTE_LIST_H

#include <cstddef>
#include <vector>

namespace Poco {
namespace XML {
class Attr;
}
} // namespace Poco

namespace ZefModelRepositoryService {

/// The attributes of one element, in the DOM's order, for one pass over
/// them. Almost every element of a model carries one to three attributes:
/// so many are held in place, and only a longer list takes a heap block.
class AttributeList {
public:
    AttributeList() = default;
    AttributeList(const AttributeList&) = delete;
    AttributeList& operator=(const AttributeList&) = delete;
    AttributeList(AttributeList&&) = default;

    /// Appends one attribute.
    void push_back(Poco::XML::Attr* attr) {
        if (_more.empty() && _size < kInPlace) {
            _inPlace[_size++] = attr;
            return;
        }
        if (_more.empty()) {
            _more.assign(_inPlace, _inPlace + _size);
        }
        _more.push_back(attr);
        ++_size;
    }

    std::size_t size() const { return _size; }
    Poco::XML::Attr* const* begin() const { return _more.empty() ? _inPlace : _more.data(); }
    Poco::XML::Attr* const* end() const { return begin() + _size; }

private:
    static const std::size_t kInPlace = 4;

    Poco::XML::Attr* _inPlace[kInPlace] = {};
    std::size_t _size = 0;
    std::vector<Poco::XML::Attr*> _more;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ATTRIBUTE_LIST_H
