#include "NestingDepthFilter.h"

#include <string>

namespace ZefModelRepositoryService {

using Poco::XML::XMLString;

NestingDepthFilter::NestingDepthFilter(Poco::XML::XMLReader* parent, XmlParseStop& stop, std::uint64_t maxDepth)
    : XmlGuardFilter(parent, stop), _maxDepth(maxDepth) {}

void NestingDepthFilter::startElement(const XMLString& uri, const XMLString& localName, const XMLString& qname,
                                      const Poco::XML::Attributes& attributes) {
    if (++_depth > _maxDepth && !stopped()) {
        refuse("elements nested deeper than " + std::to_string(_maxDepth) + " levels (ZEF_VALIDATOR_MAX_DEPTH)");
    }
    XmlGuardFilter::startElement(uri, localName, qname, attributes);
}

void NestingDepthFilter::endElement(const XMLString& uri, const XMLString& localName, const XMLString& qname) {
    --_depth;
    XmlGuardFilter::endElement(uri, localName, qname);
}

} // namespace ZefModelRepositoryService
