#include "FindingSubject.h"

#include "ModelRepository.h"

namespace ZefModelRepositoryService {

FindingSubject::FindingSubject(ModelRepository& repository, const GeneralPropertiesWrapper* record)
    : _repository(repository), _previous(repository.getFindingSubject()) {
    _repository.setFindingSubject(record);
}

FindingSubject::~FindingSubject() { _repository.setFindingSubject(_previous); }

} // namespace ZefModelRepositoryService
