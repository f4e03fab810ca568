#ifndef ZEF_NESTING_DEPTH_FILTER_H
#define ZEF_NESTING_DEPTH_FILTER_H

#include <cstdint>

#include "XmlGuardFilter.h"

namespace ZefModelRepositoryService {

/// Refuses a document whose elements nest deeper than a limit, at the first
/// element past it. The DOM code recurses over the tree (releasing it,
/// searching it by tag), so a tree a few hundred thousand levels deep would
/// overflow the stack long after it was read.
class NestingDepthFilter : public XmlGuardFilter {
public:
    /// `maxDepth`: the deepest nesting allowed (the root element is level 1).
    NestingDepthFilter(Poco::XML::XMLReader* parent, XmlParseStop& stop, std::uint64_t maxDepth);

    void startElement(const Poco::XML::XMLString& uri, const Poco::XML::XMLString& localName,
                      const Poco::XML::XMLString& qname, const Poco::XML::Attributes& attributes) override;
    void endElement(const Poco::XML::XMLString& uri, const Poco::XML::XMLString& localName,
                    const Poco::XML::XMLString& qname) override;

private:
    std::uint64_t _maxDepth;
    std::uint64_t _depth = 0;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_NESTING_DEPTH_FILTER_H
