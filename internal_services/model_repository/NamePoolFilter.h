#ifndef ZEF_NAME_POOL_FILTER_H
#define ZEF_NAME_POOL_FILTER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "XmlGuardFilter.h"

namespace ZefModelRepositoryService {

/// Refuses a document that uses more distinct element and attribute names
/// than the name pool of a DOM document made without one can hold. Past
/// that, the DOM builder would throw from inside the XML reader, which
/// leaves the reader's parser unfreed (see XmlParseStop); refused here the
/// document fails like any malformed one.
///
/// A name is what the pool keys it by: qualified name, namespace URI and
/// local name. Each name is hashed where it is met and compared in place, so
/// that counting costs no allocation once a name is known.
class NamePoolFilter : public XmlGuardFilter {
public:
    /// The capacity of the name pool of a DOM document made without one.
    static const std::size_t kCapacity = 509;

    NamePoolFilter(Poco::XML::XMLReader* parent, XmlParseStop& stop);

    void startElement(const Poco::XML::XMLString& uri, const Poco::XML::XMLString& localName,
                      const Poco::XML::XMLString& qname, const Poco::XML::Attributes& attributes) override;

    /// The number of distinct names met so far.
    std::size_t size() const { return _names.size(); }

private:
    struct Name {
        std::string qname;
        std::string uri;
        std::string localName;
    };
    struct Slot {
        std::size_t hash;
        std::uint32_t name;  // 1 + the index of the name in _names; 0 while free
    };

    /// Counts one name; refuses the document when it is one too many.
    void use(const Poco::XML::XMLString& qname, const Poco::XML::XMLString& uri, std::string_view localName);

    // Open addressing over twice the capacity: never more than half full.
    // The slots are plain values, so that a document with a dozen names
    // costs no more than clearing them; the names are kept apart.
    std::vector<Slot> _slots;
    std::vector<Name> _names;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_NAME_POOL_FILTER_H
