#include "MocIf2Impl.h"

#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "MocWrapper.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = MocIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfMocGetGeneralProperties(uint64_t moc, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(moc, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfMocGetMom(uint64_t moc, uint64_t* mom)
{
    return If2CBoundary::call<Impl>(moc, mom, &Impl::getMom);
}

template <int V>
ZefReturnT zefMrIfMocGetAttribute(uint64_t moc, uint64_t* attribute)
{
    return If2CBoundary::call<Impl>(moc, attribute, &Impl::getAttribute);
}

template <int V>
ZefReturnT zefMrIfMocGetAction(uint64_t moc, uint64_t* action)
{
    return If2CBoundary::call<Impl>(moc, action, &Impl::getAction);
}

template <int V>
ZefReturnT zefMrIfMocGetChildContainment(uint64_t moc, uint64_t* containment)
{
    return If2CBoundary::call<Impl>(moc, containment, &Impl::getChildContainment);
}

template <int V>
ZefReturnT zefMrIfMocGetParentContainment(uint64_t moc, uint64_t* containment)
{
    return If2CBoundary::call<Impl>(moc, containment, &Impl::getParentContainment);
}

template <int V>
ZefReturnT zefMrIfMocGetFirstBiDirAssociation(uint64_t moc, uint64_t* association)
{
    return If2CBoundary::call<Impl>(moc, association, &Impl::getFirstBiDirAssociation);
}

template <int V>
ZefReturnT zefMrIfMocGetFirstUniDirAssociation(uint64_t moc, uint64_t* association)
{
    return If2CBoundary::call<Impl>(moc, association, &Impl::getFirstUniDirAssociation);
}

template <int V>
ZefReturnT zefMrIfMocGetIsReadOnly(uint64_t moc, bool* isReadOnly)
{
    return If2CBoundary::call<Impl>(moc, isReadOnly, &Impl::getIsReadOnly);
}

template <int V>
ZefReturnT zefMrIfMocGetIsRoot(uint64_t moc, bool* isRoot)
{
    return If2CBoundary::call<Impl>(moc, isRoot, &Impl::getIsRoot);
}

template <int V>
ZefReturnT zefMrIfMocGetIsSystemCreated(uint64_t moc, bool* isSystemCreated)
{
    return If2CBoundary::call<Impl>(moc, isSystemCreated, &Impl::getIsSystemCreated);
}

template <int V>
ZefReturnT zefMrIfMocGetConstraint(uint64_t moc, const char** constraint)
{
    return If2CBoundary::call<Impl>(moc, constraint, &Impl::getConstraint);
}

} // namespace

MocIf2Impl::MocIf2Impl(MocWrapper& moc) : _moc(moc)
{
    If2Manager::instance().pushMoc(this);
    _moc.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_moc);
}

const MocIf2Impl& MocIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getMoc(handle);
}

ZefReturnT MocIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_moc.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT MocIf2Impl::getMom(uint64_t& mom) const
{
    return If2Links::handleOf(_moc.getStruct().mom, mom);
}

ZefReturnT MocIf2Impl::getAttribute(uint64_t& attribute) const
{
    return If2Links::handleOf(_moc.getStruct().moAttribute, attribute);
}

ZefReturnT MocIf2Impl::getAction(uint64_t& action) const
{
    return If2Links::handleOf(_moc.getStruct().moAction, action);
}

ZefReturnT MocIf2Impl::getChildContainment(uint64_t& containment) const
{
    return If2Links::handleOf(_moc.getStruct().childContainment, containment);
}

ZefReturnT MocIf2Impl::getParentContainment(uint64_t& containment) const
{
    return If2Links::handleOf(_moc.getStruct().parentContainment, containment);
}

ZefReturnT MocIf2Impl::getFirstBiDirAssociation(uint64_t& association) const
{
    return If2Links::registeredHandle(_moc.getFirstBiDirHandle(), association);
}

ZefReturnT MocIf2Impl::getFirstUniDirAssociation(uint64_t& association) const
{
    return If2Links::registeredHandle(_moc.getFirstUniDirHandle(), association);
}

ZefReturnT MocIf2Impl::getIsReadOnly(bool& isReadOnly) const
{
    return If2Links::value(_moc.getStruct().isReadOnly, isReadOnly);
}

ZefReturnT MocIf2Impl::getIsRoot(bool& isRoot) const
{
    return If2Links::value(_moc.getStruct().isRoot, isRoot);
}

ZefReturnT MocIf2Impl::getIsSystemCreated(bool& isSystemCreated) const
{
    // Kept by the record class beside the published record.
    return If2Links::value(_moc.getIsSystemCreated(), isSystemCreated);
}

ZefReturnT MocIf2Impl::getConstraint(const char*& constraint) const
{
    return If2Links::text(_moc.getStruct().constraint, constraint);
}

void MocIf2Impl::initInterface(ZefOamSpiMoc_2& table)
{
    table.getGeneralProperties = &zefMrIfMocGetGeneralProperties<2>;
    table.getMom = &zefMrIfMocGetMom<2>;
    table.getAttribute = &zefMrIfMocGetAttribute<2>;
    table.getAction = &zefMrIfMocGetAction<2>;
    table.getChildContainment = &zefMrIfMocGetChildContainment<2>;
    table.getParentContainment = &zefMrIfMocGetParentContainment<2>;
    table.getIsReadOnly = &zefMrIfMocGetIsReadOnly<2>;
    table.getIsRoot = &zefMrIfMocGetIsRoot<2>;
    table.getIsSystemCreated = &zefMrIfMocGetIsSystemCreated<2>;
    table.getConstraint = &zefMrIfMocGetConstraint<2>;
}

void MocIf2Impl::initInterface(ZefOamSpiMrMoc_3& table)
{
    table.getGeneralProperties = &zefMrIfMocGetGeneralProperties<3>;
    table.getMom = &zefMrIfMocGetMom<3>;
    table.getAttribute = &zefMrIfMocGetAttribute<3>;
    table.getAction = &zefMrIfMocGetAction<3>;
    table.getChildContainment = &zefMrIfMocGetChildContainment<3>;
    table.getParentContainment = &zefMrIfMocGetParentContainment<3>;
    table.getIsReadOnly = &zefMrIfMocGetIsReadOnly<3>;
    table.getIsRoot = &zefMrIfMocGetIsRoot<3>;
    table.getIsSystemCreated = &zefMrIfMocGetIsSystemCreated<3>;
    table.getConstraint = &zefMrIfMocGetConstraint<3>;
}

void MocIf2Impl::initInterface(ZefOamSpiMrMoc_4& table)
{
    table.getGeneralProperties = &zefMrIfMocGetGeneralProperties<4>;
    table.getMom = &zefMrIfMocGetMom<4>;
    table.getAttribute = &zefMrIfMocGetAttribute<4>;
    table.getAction = &zefMrIfMocGetAction<4>;
    table.getChildContainment = &zefMrIfMocGetChildContainment<4>;
    table.getParentContainment = &zefMrIfMocGetParentContainment<4>;
    table.getFirstBiDirAssociation = &zefMrIfMocGetFirstBiDirAssociation<4>;
    table.getFirstUniDirAssociation = &zefMrIfMocGetFirstUniDirAssociation<4>;
    table.getIsReadOnly = &zefMrIfMocGetIsReadOnly<4>;
    table.getIsRoot = &zefMrIfMocGetIsRoot<4>;
    table.getIsSystemCreated = &zefMrIfMocGetIsSystemCreated<4>;
    table.getConstraint = &zefMrIfMocGetConstraint<4>;
}

} // namespace ZefModelRepositoryService
