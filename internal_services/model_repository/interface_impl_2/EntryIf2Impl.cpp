#include "EntryIf2Impl.h"

#include "If2CBoundary.h"
#include "If2Manager.h"
#include "ModelRepository.h"
#include "ModelRepositoryService.h"

namespace ZefModelRepositoryService {

namespace {

const ModelRepository& repository()
{
    // Only reached through If2CBoundary::callEntry, after the started check.
    return *ModelRepositoryService::getModelRepositoryService()->getModelRepository();
}

/// The handle of a record the repository found, or ZefNotFound.
template <typename Record>
ZefReturnT handleOf(ZefReturnT result, const Record* record, uint64_t& handle)
{
    if (result != ZefOk || record == nullptr) {
        return ZefNotFound;
    }
    handle = record->handle;
    return ZefOk;
}

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfEntryGetMom(uint64_t* momHandle)
{
    return If2CBoundary::callEntry(If2Manager::instance().getEntry(), momHandle, &EntryIf2Impl::getMom);
}

template <int V>
ZefReturnT zefMrIfEntryGetMoc(const char* mimName, const char* mimVersion, const char* mocName, uint64_t* mocHandle)
{
    return If2CBoundary::callEntry(If2Manager::instance().getEntry(), mocHandle, &EntryIf2Impl::getMoc, mimName,
                                   mimVersion, mocName);
}

template <int V>
ZefReturnT zefMrIfEntryGetMocFromDn(const char* dn, bool flag, uint64_t* mocHandle)
{
    return If2CBoundary::callEntry(If2Manager::instance().getEntry(), mocHandle, &EntryIf2Impl::getMocFromDn, dn,
                                   flag);
}

template <int V>
ZefReturnT zefMrIfEntryGetRoot(uint64_t* mocHandle)
{
    return If2CBoundary::callEntry(If2Manager::instance().getEntry(), mocHandle, &EntryIf2Impl::getRoot);
}

ZefReturnT zefMrIfEntryGetEnum_4_1(const char*, const char*, const char*, uint64_t*)
{
    return ZefNotFound;
}

ZefReturnT zefMrIfEntryGetBiDirAssociation_4_1(const char*, const char*, const char*, uint64_t*)
{
    return ZefNotFound;
}

ZefReturnT zefMrIfEntryGetUniDirAssociation_4_1(const char*, const char*, const char*, uint64_t*)
{
    return ZefNotFound;
}

} // namespace

ZefReturnT EntryIf2Impl::getMom(uint64_t& momHandle) const
{
    const ZefOamSpiMom* mom = nullptr;
    const ZefReturnT result = repository().getMoms(&mom);
    if (result != ZefOk) {
        return result;
    }
    return handleOf(result, mom, momHandle);
}

ZefReturnT EntryIf2Impl::getMoc(const char* mimName, const char* mimVersion, const char* mocName,
                                uint64_t& mocHandle) const
{
    const ZefOamSpiMoc* moc = nullptr;
    const ZefReturnT result = repository().getMoc(mimName, mimVersion, mocName, &moc);
    return handleOf(result, moc, mocHandle);
}

ZefReturnT EntryIf2Impl::getMocFromDn(const char* dn, bool flag, uint64_t& mocHandle) const
{
    if (dn == nullptr) {
        return ZefInvalidArgument;
    }
    const ZefOamSpiMoc* moc = nullptr;
    const ZefReturnT result = repository().getMocFromDn(dn, flag, &moc);
    return handleOf(result, moc, mocHandle);
}

ZefReturnT EntryIf2Impl::getRoot(uint64_t& mocHandle) const
{
    const ZefOamSpiMoc* root = nullptr;
    const ZefReturnT result = repository().getTreeRoot(&root);
    return handleOf(result, root, mocHandle);
}

void EntryIf2Impl::initInterface(ZefOamSpiEntry_2& table)
{
    table.getMom = &zefMrIfEntryGetMom<2>;
    table.getMoc = &zefMrIfEntryGetMoc<2>;
    table.getRoot = &zefMrIfEntryGetRoot<2>;
}

void EntryIf2Impl::initInterface(ZefOamSpiMrEntry_3& table)
{
    table.getMom = &zefMrIfEntryGetMom<3>;
    table.getMoc = &zefMrIfEntryGetMoc<3>;
    table.getMocFromDn = &zefMrIfEntryGetMocFromDn<3>;
    table.getRoot = &zefMrIfEntryGetRoot<3>;
}

void EntryIf2Impl::initInterface(ZefOamSpiMrEntry_4& table)
{
    table.getMom = &zefMrIfEntryGetMom<4>;
    table.getMoc = &zefMrIfEntryGetMoc<4>;
    table.getMocFromDn = &zefMrIfEntryGetMocFromDn<4>;
    table.getRoot = &zefMrIfEntryGetRoot<4>;
}

void EntryIf2Impl::initInterface(ZefOamSpiMrEntry_4_1& table)
{
    table.getEnum = &zefMrIfEntryGetEnum_4_1;
    table.getBiDirAssociation = &zefMrIfEntryGetBiDirAssociation_4_1;
    table.getUniDirAssociation = &zefMrIfEntryGetUniDirAssociation_4_1;
}

} // namespace ZefModelRepositoryService
