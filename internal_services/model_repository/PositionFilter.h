#ifndef ZEF_POSITION_FILTER_H
#define ZEF_POSITION_FILTER_H

#include <Poco/SAX/WhitespaceFilter.h>

namespace ZefModelRepositoryService {

class ElementPositions;

/// The white-space filter of the XML reader chain (it drops white-space-only
/// text between elements) that also notes where each start tag begins,
/// through the reader's locator. Put before the DOM builder, it notes the
/// elements in the order the builder creates them. It is one filter rather
/// than two so that the events of a large document pass one layer less.
class PositionFilter : public Poco::XML::WhitespaceFilter {
public:
    /// Reads from `parent` and notes into `positions`, which must outlive
    /// the parse.
    PositionFilter(Poco::XML::XMLReader* parent, ElementPositions& positions);

    void setDocumentLocator(const Poco::XML::Locator* locator) override;
    void startElement(const Poco::XML::XMLString& uri, const Poco::XML::XMLString& localName,
                      const Poco::XML::XMLString& qname, const Poco::XML::Attributes& attributes) override;

private:
    ElementPositions& _positions;
    const Poco::XML::Locator* _locator = nullptr;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_POSITION_FILTER_H
