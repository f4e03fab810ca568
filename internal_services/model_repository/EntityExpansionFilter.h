#ifndef ZEF_ENTITY_EXPANSION_FILTER_H
#define ZEF_ENTITY_EXPANSION_FILTER_H

#include <cstdint>

#include "EntityExpansion.h"
#include "XmlGuardFilter.h"

namespace ZefModelRepositoryService {

/// Refuses a document whose entities would expand beyond a limit, in the
/// pass that builds its DOM:
/// - once the document type declaration ends (before any reference in the
///   elements is expanded), when a declared entity or the references of the
///   document add more than the limit (see EntityExpansion);
/// - while the elements are read, when they produce more text (character
///   data and attribute values) than the document could hold without
///   entities, three bytes per input byte (the most any encoding grows to
///   in UTF-8), plus the limit. This also catches an attribute default that
///   copies an entity into every element.
class EntityExpansionFilter : public XmlGuardFilter {
public:
    /// `limit`: the most bytes that entity references may add to the
    /// document held by `stop`.
    EntityExpansionFilter(Poco::XML::XMLReader* parent, XmlParseStop& stop, std::uint64_t limit);

    void startElement(const Poco::XML::XMLString& uri, const Poco::XML::XMLString& localName,
                      const Poco::XML::XMLString& qname, const Poco::XML::Attributes& attributes) override;
    void characters(const Poco::XML::XMLChar ch[], int start, int length) override;
    void ignorableWhitespace(const Poco::XML::XMLChar ch[], int start, int length) override;
    void endDTD() override;
    void internalEntityDecl(const Poco::XML::XMLString& name, const Poco::XML::XMLString& value) override;

private:
    /// Counts text the document produces; refuses past the output limit.
    void produce(std::uint64_t bytes);
    /// The refusal text for `what` with the limit and its variable.
    std::string reasonFor(const std::string& what) const;

    std::uint64_t _limit;
    std::uint64_t _outputLimit;
    std::uint64_t _produced = 0;
    EntityExpansion _entities;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ENTITY_EXPANSION_FILTER_H
