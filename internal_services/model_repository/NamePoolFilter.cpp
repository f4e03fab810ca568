#include "NamePoolFilter.h"

#include <functional>
#include <string_view>

#include <Poco/SAX/Attributes.h>

namespace ZefModelRepositoryService {

using Poco::XML::XMLString;

namespace {

const std::size_t kSlots = 1024;  // a power of two above twice the capacity

// The part of a qualified name after its prefix, without a copy.
std::string_view localPart(const XMLString& qname) {
    const std::string::size_type colon = qname.find(':');
    return colon == std::string::npos ? std::string_view(qname) : std::string_view(qname).substr(colon + 1);
}

} // namespace

NamePoolFilter::NamePoolFilter(Poco::XML::XMLReader* parent, XmlParseStop& stop)
    : XmlGuardFilter(parent, stop), _slots(kSlots, Slot{0, 0}) {}

void NamePoolFilter::use(const XMLString& qname, const XMLString& uri, std::string_view localName) {
    const std::hash<std::string> hasher;
    // Most documents use no namespace: the URI is then not hashed.
    const std::size_t hash = uri.empty() ? hasher(qname) : hasher(qname) * 31 + hasher(uri);
    std::size_t at = hash & (kSlots - 1);
    while (_slots[at].name != 0) {
        const Slot& slot = _slots[at];
        if (slot.hash == hash) {
            const Name& name = _names[slot.name - 1];
            if (name.qname == qname && name.uri == uri && name.localName == localName) {
                return;
            }
        }
        at = (at + 1) & (kSlots - 1);
    }
    if (_names.size() == kCapacity) {
        refuse("more than " + std::to_string(kCapacity) +
               " distinct element and attribute names, more than a DOM document holds");
        return;
    }
    _names.push_back(Name{qname, uri, std::string(localName.data(), localName.size())});
    _slots[at] = Slot{hash, static_cast<std::uint32_t>(_names.size())};
}

void NamePoolFilter::startElement(const XMLString& uri, const XMLString& localName, const XMLString& qname,
                                  const Poco::XML::Attributes& attributes) {
    if (!stopped()) {
        // The DOM names an element by its qualified name and the local part
        // of that; an attribute by the names the reader reports for it.
        const XMLString& elementName = qname.empty() ? localName : qname;
        use(elementName, uri, localPart(elementName));
        const int count = attributes.getLength();
        for (int i = 0; i < count && !stopped(); ++i) {
            use(attributes.getQName(i), attributes.getURI(i), attributes.getLocalName(i));
        }
    }
    XmlGuardFilter::startElement(uri, localName, qname, attributes);
}

} // namespace ZefModelRepositoryService
