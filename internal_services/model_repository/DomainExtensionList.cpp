#include "DomainExtensionList.h"

#include <cstring>
#include <new>

#include "RecordPool.h"

namespace ZefModelRepositoryService {

DomainExtensionList::~DomainExtensionList()
{
    if (_block != nullptr) {
        RecordPool::release(_block, blockSize(_block->room));
    }
}

void DomainExtensionList::reserve(std::size_t count)
{
    if (count <= (_block != nullptr ? _block->room : 0)) {
        return;
    }
    Block* grown = static_cast<Block*>(RecordPool::allocate(blockSize(count)));
    grown->count = 0;
    grown->room = static_cast<uint32_t>(count);
    if (_block != nullptr) {
        grown->count = _block->count;
        std::memcpy(grown->items(), _block->items(), _block->count * sizeof(DomainExtensionWrapper*));
        RecordPool::release(_block, blockSize(_block->room));
    }
    _block = grown;
}

void DomainExtensionList::push_back(DomainExtensionWrapper* extension)
{
    const std::size_t count = size();
    if (_block == nullptr || count == _block->room) {
        // One at first; doubling after that keeps a long list linear to fill.
        reserve(count == 0 ? 1 : count * 2);
    }
    _block->items()[count] = extension;
    ++_block->count;
}

} // namespace ZefModelRepositoryService
