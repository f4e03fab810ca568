#include "If2Manager.h"

#include "ActionIf2Impl.h"
#include "AssociationEndIfImpl.h"
#include "AttributeIf2Impl.h"
#include "BidirectionalAssociationIfImpl.h"
#include "ContainmentIf2Impl.h"
#include "DerivedTypeIf2Impl.h"
#include "DomainExtensionIf2Impl.h"
#include "EnumLiteralIf2Impl.h"
#include "EnumTypeIf2Impl.h"
#include "GeneralPropertiesIf2Impl.h"
#include "MocIf2Impl.h"
#include "MomIf2Impl.h"
#include "ParameterIf2Impl.h"
#include "StructMemberIf2Impl.h"
#include "StructTypeIf2Impl.h"
#include "TypeContainerIf2Impl.h"
#include "UnidirectionalAssociationIfImpl.h"
#include "ValueRangeIf2Impl.h"

namespace ZefModelRepositoryService {

namespace {

// The three texts that head every versioned table.
const char* const kComponentName = "ZefOamSpiModelRepositoryService";
const char* const kInterfaceName = "ZefOamSpiModelRepository";

} // namespace

If2Manager& If2Manager::instance()
{
    static If2Manager manager;
    return manager;
}

If2Manager::If2Manager()
{
    initIf2();
    initIf3();
    initIf4();
    initIf4_1();
}

// The arrays delete what is left of their objects.
If2Manager::~If2Manager() = default;

void If2Manager::pushAction(ActionIf2Impl* object)
{
    _actions.push(object);
}

void If2Manager::pushParameter(ParameterIf2Impl* object)
{
    _parameters.push(object);
}

void If2Manager::pushAttribute(AttributeIf2Impl* object)
{
    _attributes.push(object);
}

void If2Manager::pushContainment(ContainmentIf2Impl* object)
{
    _containments.push(object);
}

void If2Manager::pushDerivedType(DerivedTypeIf2Impl* object)
{
    _derivedTypes.push(object);
}

void If2Manager::pushValueRange(ValueRangeIf2Impl* object)
{
    _valueRanges.push(object);
}

void If2Manager::pushEnumType(EnumTypeIf2Impl* object)
{
    _enumTypes.push(object);
}

void If2Manager::pushEnumLiteral(EnumLiteralIf2Impl* object)
{
    _enumLiterals.push(object);
}

void If2Manager::pushGeneralProperties(GeneralPropertiesIf2Impl* object)
{
    _generalProperties.push(object);
}

void If2Manager::pushMoc(MocIf2Impl* object)
{
    _mocs.push(object);
}

void If2Manager::pushMom(MomIf2Impl* object)
{
    _moms.push(object);
}

void If2Manager::pushStructType(StructTypeIf2Impl* object)
{
    _structTypes.push(object);
}

void If2Manager::pushStructMember(StructMemberIf2Impl* object)
{
    _structMembers.push(object);
}

void If2Manager::pushTypeContainer(TypeContainerIf2Impl* object)
{
    _typeContainers.push(object);
}

void If2Manager::pushAssociationEnd(AssociationEndIfImpl* object)
{
    _associationEnds.push(object);
}

void If2Manager::pushBidirectionalAssociation(BidirectionalAssociationIfImpl* object)
{
    _bidirectionalAssociations.push(object);
}

void If2Manager::pushUnidirectionalAssociation(UnidirectionalAssociationIfImpl* object)
{
    _unidirectionalAssociations.push(object);
}

void If2Manager::pushDomainExtension(DomainExtensionIf2Impl* object)
{
    _domainExtensions.push(object);
}

const ActionIf2Impl& If2Manager::getAction(uint64_t handle) const
{
    return _actions.at(handle);
}

const ParameterIf2Impl& If2Manager::getParameter(uint64_t handle) const
{
    return _parameters.at(handle);
}

const AttributeIf2Impl& If2Manager::getAttribute(uint64_t handle) const
{
    return _attributes.at(handle);
}

const ContainmentIf2Impl& If2Manager::getContainment(uint64_t handle) const
{
    return _containments.at(handle);
}

const DerivedTypeIf2Impl& If2Manager::getDerivedType(uint64_t handle) const
{
    return _derivedTypes.at(handle);
}

const ValueRangeIf2Impl& If2Manager::getValueRange(uint64_t handle) const
{
    return _valueRanges.at(handle);
}

const EnumTypeIf2Impl& If2Manager::getEnumType(uint64_t handle) const
{
    return _enumTypes.at(handle);
}

const EnumLiteralIf2Impl& If2Manager::getEnumLiteral(uint64_t handle) const
{
    return _enumLiterals.at(handle);
}

const GeneralPropertiesIf2Impl& If2Manager::getGeneralProperties(uint64_t handle) const
{
    return _generalProperties.at(handle);
}

const MocIf2Impl& If2Manager::getMoc(uint64_t handle) const
{
    return _mocs.at(handle);
}

const MomIf2Impl& If2Manager::getMom(uint64_t handle) const
{
    return _moms.at(handle);
}

const StructTypeIf2Impl& If2Manager::getStructType(uint64_t handle) const
{
    return _structTypes.at(handle);
}

const StructMemberIf2Impl& If2Manager::getStructMember(uint64_t handle) const
{
    return _structMembers.at(handle);
}

const TypeContainerIf2Impl& If2Manager::getTypeContainer(uint64_t handle) const
{
    return _typeContainers.at(handle);
}

const AssociationEndIfImpl& If2Manager::getAssociationEnd(uint64_t handle) const
{
    return _associationEnds.at(handle);
}

const BidirectionalAssociationIfImpl& If2Manager::getBidirectionalAssociation(uint64_t handle) const
{
    return _bidirectionalAssociations.at(handle);
}

const UnidirectionalAssociationIfImpl& If2Manager::getUnidirectionalAssociation(uint64_t handle) const
{
    return _unidirectionalAssociations.at(handle);
}

const DomainExtensionIf2Impl& If2Manager::getDomainExtension(uint64_t handle) const
{
    return _domainExtensions.at(handle);
}

void If2Manager::cleanup()
{
    _actions.cleanup();
    _parameters.cleanup();
    _attributes.cleanup();
    _containments.cleanup();
    _derivedTypes.cleanup();
    _valueRanges.cleanup();
    _enumTypes.cleanup();
    _enumLiterals.cleanup();
    _generalProperties.cleanup();
    _mocs.cleanup();
    _moms.cleanup();
    _structTypes.cleanup();
    _structMembers.cleanup();
    _typeContainers.cleanup();
    _associationEnds.cleanup();
    _bidirectionalAssociations.cleanup();
    _unidirectionalAssociations.cleanup();
    _domainExtensions.cleanup();
}

void If2Manager::initIf2()
{
    _if2.base = ZefMgmtSpiInterface_1{kComponentName, kInterfaceName, "2"};
    _if2.entry = &_entry2;
    _if2.generalProperties = &_generalProperties2;
    _if2.mom = &_mom2;
    _if2.moc = &_moc2;
    _if2.containment = &_containment2;
    _if2.typeContainer = &_typeContainer2;
    _if2.derived = &_derived2;
    _if2.enumType = &_enum2;
    _if2.structType = &_struct2;
    _if2.attribute = &_attribute2;
    _if2.action = &_action2;

    EntryIf2Impl::initInterface(_entry2);
    GeneralPropertiesIf2Impl::initInterface(_generalProperties2);
    MomIf2Impl::initInterface(_mom2);
    MocIf2Impl::initInterface(_moc2);
    ContainmentIf2Impl::initInterface(_containment2);
    TypeContainerIf2Impl::initInterface(_typeContainer2);
    DerivedTypeIf2Impl::initInterface(_derived2);
    ValueRangeIf2Impl::initInterface(_derived2);
    EnumTypeIf2Impl::initInterface(_enum2);
    EnumLiteralIf2Impl::initInterface(_enum2);
    StructTypeIf2Impl::initInterface(_struct2);
    StructMemberIf2Impl::initInterface(_struct2);
    AttributeIf2Impl::initInterface(_attribute2);
    ActionIf2Impl::initInterface(_action2);
    ParameterIf2Impl::initInterface(_action2);
}

void If2Manager::initIf3()
{
    _if3.base = ZefMgmtSpiInterface_1{kComponentName, kInterfaceName, "3"};
    _if3.entry = &_entry3;
    _if3.generalProperties = &_generalProperties3;
    _if3.mom = &_mom3;
    _if3.moc = &_moc3;
    _if3.containment = &_containment3;
    _if3.typeContainer = &_typeContainer3;
    _if3.enumType = &_enum3;
    _if3.structType = &_struct3;
    _if3.attribute = &_attribute3;
    _if3.action = &_action3;
    _if3.moRef = &_moRef3;
    _if3.intType = &_int3;
    _if3.stringType = &_string3;
    _if3.floatType = &_float3;

    EntryIf2Impl::initInterface(_entry3);
    GeneralPropertiesIf2Impl::initInterface(_generalProperties3);
    DomainExtensionIf2Impl::initInterface(_generalProperties3);
    MomIf2Impl::initInterface(_mom3);
    MocIf2Impl::initInterface(_moc3);
    ContainmentIf2Impl::initInterface(_containment3);
    TypeContainerIf2Impl::initInterface(_typeContainer3);
    DerivedTypeIf2Impl::initInterface(_typeContainer3);
    EnumTypeIf2Impl::initInterface(_enum3);
    EnumLiteralIf2Impl::initInterface(_enum3);
    StructTypeIf2Impl::initInterface(_struct3);
    StructMemberIf2Impl::initInterface(_struct3);
    AttributeIf2Impl::initInterface(_attribute3);
    ActionIf2Impl::initInterface(_action3);
    ParameterIf2Impl::initInterface(_action3);
    TypeContainerIf2Impl::initInterface(_moRef3);
    TypeContainerIf2Impl::initInterface(_int3);
    ValueRangeIf2Impl::initInterface(_int3);
    TypeContainerIf2Impl::initInterface(_string3);
    ValueRangeIf2Impl::initInterface(_string3);
    TypeContainerIf2Impl::initInterface(_float3);
    ValueRangeIf2Impl::initInterface(_float3);
}

void If2Manager::initIf4()
{
    _if4.base = ZefMgmtSpiInterface_1{kComponentName, kInterfaceName, "4"};
    _if4.entry = &_entry4;
    _if4.generalProperties = &_generalProperties4;
    _if4.mom = &_mom4;
    _if4.moc = &_moc4;
    _if4.containment = &_containment4;
    _if4.associationEnd = &_associationEnd4;
    _if4.biDirAssociation = &_biDirAssociation4;
    _if4.uniDirAssociation = &_uniDirAssociation4;
    _if4.typeContainer = &_typeContainer4;
    _if4.enumType = &_enum4;
    _if4.structType = &_struct4;
    _if4.attribute = &_attribute4;
    _if4.action = &_action4;
    _if4.moRef = &_moRef4;
    _if4.intType = &_int4;
    _if4.stringType = &_string4;
    _if4.floatType = &_float4;

    EntryIf2Impl::initInterface(_entry4);
    GeneralPropertiesIf2Impl::initInterface(_generalProperties4);
    DomainExtensionIf2Impl::initInterface(_generalProperties4);
    MomIf2Impl::initInterface(_mom4);
    MocIf2Impl::initInterface(_moc4);
    ContainmentIf2Impl::initInterface(_containment4);
    AssociationEndIfImpl::initInterface(_associationEnd4);
    BidirectionalAssociationIfImpl::initInterface(_biDirAssociation4);
    UnidirectionalAssociationIfImpl::initInterface(_uniDirAssociation4);
    TypeContainerIf2Impl::initInterface(_typeContainer4);
    DerivedTypeIf2Impl::initInterface(_typeContainer4);
    EnumTypeIf2Impl::initInterface(_enum4);
    EnumLiteralIf2Impl::initInterface(_enum4);
    StructTypeIf2Impl::initInterface(_struct4);
    StructMemberIf2Impl::initInterface(_struct4);
    AttributeIf2Impl::initInterface(_attribute4);
    ActionIf2Impl::initInterface(_action4);
    ParameterIf2Impl::initInterface(_action4);
    TypeContainerIf2Impl::initInterface(_moRef4);
    TypeContainerIf2Impl::initInterface(_int4);
    ValueRangeIf2Impl::initInterface(_int4);
    TypeContainerIf2Impl::initInterface(_string4);
    ValueRangeIf2Impl::initInterface(_string4);
    TypeContainerIf2Impl::initInterface(_float4);
    ValueRangeIf2Impl::initInterface(_float4);
}

void If2Manager::initIf4_1()
{
    _if4_1.base = ZefMgmtSpiInterface_1{kComponentName, kInterfaceName, "4_1"};
    _if4_1.entry = &_entry4_1;
    _if4_1.enumType = &_enum4_1;
    _if4_1.biDirAssociation = &_biDirAssociation4_1;
    _if4_1.uniDirAssociation = &_uniDirAssociation4_1;

    EntryIf2Impl::initInterface(_entry4_1);
    EnumTypeIf2Impl::initInterface(_enum4_1);
    EnumLiteralIf2Impl::initInterface(_enum4_1);
    BidirectionalAssociationIfImpl::initInterface(_biDirAssociation4_1);
    UnidirectionalAssociationIfImpl::initInterface(_uniDirAssociation4_1);
}

} // namespace ZefModelRepositoryService
