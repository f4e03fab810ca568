#ifndef ZEF_FINDING_SUBJECT_H
#define ZEF_FINDING_SUBJECT_H

namespace ZefModelRepositoryService {

class GeneralPropertiesWrapper;
class ModelRepository;

/// Names the record a pass of compilation or validation is working on, for
/// as long as this object lives: a finding whose text does not name a
/// registered record by its key (a parameter, a struct member or a literal,
/// keyed by their names alone) points at this record instead. Scopes nest;
/// the previous record is named again when this one ends.
class FindingSubject {
public:
    FindingSubject(ModelRepository& repository, const GeneralPropertiesWrapper* record);
    ~FindingSubject();

    FindingSubject(const FindingSubject&) = delete;
    FindingSubject& operator=(const FindingSubject&) = delete;

private:
    ModelRepository& _repository;
    const GeneralPropertiesWrapper* _previous;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_FINDING_SUBJECT_H
