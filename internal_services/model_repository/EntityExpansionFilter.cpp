#include "EntityExpansionFilter.h"

#include <Poco/SAX/Attributes.h>

namespace ZefModelRepositoryService {

using Poco::XML::XMLChar;
using Poco::XML::XMLString;

namespace {

std::uint64_t saturatingSum(std::uint64_t a, std::uint64_t b) { return a > UINT64_MAX - b ? UINT64_MAX : a + b; }

std::uint64_t lengthOf(int length) { return length > 0 ? static_cast<std::uint64_t>(length) : 0; }

} // namespace

EntityExpansionFilter::EntityExpansionFilter(Poco::XML::XMLReader* parent, XmlParseStop& stop, std::uint64_t limit)
    : XmlGuardFilter(parent, stop),
      _limit(limit),
      _outputLimit(saturatingSum(3 * static_cast<std::uint64_t>(stop.size()), limit)),
      _entities(limit) {}

std::string EntityExpansionFilter::reasonFor(const std::string& what) const {
    return what + " " + std::to_string(_limit) + " bytes (ZEF_VALIDATOR_MAX_ENTITY_EXPANSION)";
}

void EntityExpansionFilter::produce(std::uint64_t bytes) {
    _produced = saturatingSum(_produced, bytes);
    if (_produced > _outputLimit && !stopped()) {
        refuse(reasonFor("entity references expand to more than"));
    }
}

void EntityExpansionFilter::startElement(const XMLString& uri, const XMLString& localName, const XMLString& qname,
                                         const Poco::XML::Attributes& attributes) {
    const int count = attributes.getLength();
    for (int i = 0; i < count; ++i) {
        produce(attributes.getValue(i).size());
    }
    XmlGuardFilter::startElement(uri, localName, qname, attributes);
}

void EntityExpansionFilter::characters(const XMLChar ch[], int start, int length) {
    produce(lengthOf(length));
    XmlGuardFilter::characters(ch, start, length);
}

void EntityExpansionFilter::ignorableWhitespace(const XMLChar ch[], int start, int length) {
    produce(lengthOf(length));
    XmlGuardFilter::ignorableWhitespace(ch, start, length);
}

void EntityExpansionFilter::internalEntityDecl(const XMLString& name, const XMLString& value) {
    _entities.declare(name, value);
    XmlGuardFilter::internalEntityDecl(name, value);
}

void EntityExpansionFilter::endDTD() {
    // Every declaration is known now and no element has been read yet: the
    // last moment at which no reference has been expanded.
    if (!stopped() && !_entities.empty()) {
        const std::string reason = _entities.check(parseStop().document(), parseStop().size());
        if (!reason.empty()) {
            refuse(reason + " (ZEF_VALIDATOR_MAX_ENTITY_EXPANSION)");
        }
    }
    XmlGuardFilter::endDTD();
}

} // namespace ZefModelRepositoryService
