#ifndef ZEF_FINDING_LOCATOR_H
#define ZEF_FINDING_LOCATOR_H

#include <string>

#include "FindingRule.h"

namespace ZefModelRepositoryService {

class GeneralPropertiesWrapper;
class ModelRepository;

/// Finds the record a finding of compilation or validation names, through
/// the registries of the repository, so that the finding can point at the
/// element that defined the record.
class FindingLocator {
public:
    explicit FindingLocator(const ModelRepository& repository);

    /// The registered record of that kind and identity key; null when there
    /// is none, or when the kind's keys do not name a record by themselves
    /// (parameters, struct members, literals).
    const GeneralPropertiesWrapper* find(RuleSubject subject, const std::string& key) const;

private:
    const ModelRepository& _repository;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_FINDING_LOCATOR_H
