#ifndef ZEF_IF2_MANAGER_H
#define ZEF_IF2_MANAGER_H

#include <cstdint>

#include "EntryIf2Impl.h"
#include "If2Array.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"

namespace ZefModelRepositoryService {

class ActionIf2Impl;
class ParameterIf2Impl;
class AttributeIf2Impl;
class ContainmentIf2Impl;
class DerivedTypeIf2Impl;
class ValueRangeIf2Impl;
class EnumTypeIf2Impl;
class EnumLiteralIf2Impl;
class GeneralPropertiesIf2Impl;
class MocIf2Impl;
class MomIf2Impl;
class StructTypeIf2Impl;
class StructMemberIf2Impl;
class TypeContainerIf2Impl;
class AssociationEndIfImpl;
class BidirectionalAssociationIfImpl;
class UnidirectionalAssociationIfImpl;
class DomainExtensionIf2Impl;

/// The one manager of the model query interface in the process: it issues
/// the handles of the interface objects (one array per element kind, the
/// n-th object of a kind gets 3017 + n), finds the objects by handle, and
/// holds the function tables of the interface versions "2", "3", "4" and
/// "4_1", filled once when the manager is created.
class If2Manager {
public:
    /// The manager, created on first use and destroyed at process exit.
    static If2Manager& instance();

    If2Manager(const If2Manager&) = delete;
    If2Manager& operator=(const If2Manager&) = delete;

    /// The interface tables of each version; never null.
    const ZefOamSpiModelRepository_2* getIf2() const { return &_if2; }
    const ZefOamSpiModelRepository_3* getIf3() const { return &_if3; }
    const ZefOamSpiModelRepository_4* getIf4() const { return &_if4; }
    const ZefOamSpiModelRepository_4_1* getIf4_1() const { return &_if4_1; }
    /// The entry object behind the entry tables.
    const EntryIf2Impl& getEntry() const { return _entry; }

    /// Each push takes ownership of the object, assigns it the handle
    /// 3017 + the number of objects of its kind (pushedWithHandle) and
    /// appends it. The interface objects push themselves when constructed.
    void pushAction(ActionIf2Impl* object);
    void pushParameter(ParameterIf2Impl* object);
    void pushAttribute(AttributeIf2Impl* object);
    void pushContainment(ContainmentIf2Impl* object);
    void pushDerivedType(DerivedTypeIf2Impl* object);
    void pushValueRange(ValueRangeIf2Impl* object);
    void pushEnumType(EnumTypeIf2Impl* object);
    void pushEnumLiteral(EnumLiteralIf2Impl* object);
    void pushGeneralProperties(GeneralPropertiesIf2Impl* object);
    void pushMoc(MocIf2Impl* object);
    void pushMom(MomIf2Impl* object);
    void pushStructType(StructTypeIf2Impl* object);
    void pushStructMember(StructMemberIf2Impl* object);
    void pushTypeContainer(TypeContainerIf2Impl* object);
    void pushAssociationEnd(AssociationEndIfImpl* object);
    void pushBidirectionalAssociation(BidirectionalAssociationIfImpl* object);
    void pushUnidirectionalAssociation(UnidirectionalAssociationIfImpl* object);
    void pushDomainExtension(DomainExtensionIf2Impl* object);

    /// Each lookup returns the object of its kind with that handle, or
    /// throws std::out_of_range naming the handle when there is none.
    const ActionIf2Impl& getAction(uint64_t handle) const;
    const ParameterIf2Impl& getParameter(uint64_t handle) const;
    const AttributeIf2Impl& getAttribute(uint64_t handle) const;
    const ContainmentIf2Impl& getContainment(uint64_t handle) const;
    const DerivedTypeIf2Impl& getDerivedType(uint64_t handle) const;
    const ValueRangeIf2Impl& getValueRange(uint64_t handle) const;
    const EnumTypeIf2Impl& getEnumType(uint64_t handle) const;
    const EnumLiteralIf2Impl& getEnumLiteral(uint64_t handle) const;
    const GeneralPropertiesIf2Impl& getGeneralProperties(uint64_t handle) const;
    const MocIf2Impl& getMoc(uint64_t handle) const;
    const MomIf2Impl& getMom(uint64_t handle) const;
    const StructTypeIf2Impl& getStructType(uint64_t handle) const;
    const StructMemberIf2Impl& getStructMember(uint64_t handle) const;
    const TypeContainerIf2Impl& getTypeContainer(uint64_t handle) const;
    const AssociationEndIfImpl& getAssociationEnd(uint64_t handle) const;
    const BidirectionalAssociationIfImpl& getBidirectionalAssociation(uint64_t handle) const;
    const UnidirectionalAssociationIfImpl& getUnidirectionalAssociation(uint64_t handle) const;
    const DomainExtensionIf2Impl& getDomainExtension(uint64_t handle) const;

    /// Deletes every interface object, kind by kind and within a kind from
    /// the last to the first. Afterwards no handle is valid and the next
    /// object of every kind gets 3017 again. The tables stay valid.
    void cleanup();

private:
    If2Manager();
    ~If2Manager();

    void initIf2();
    void initIf3();
    void initIf4();
    void initIf4_1();

    // One array per kind, in this order; cleanup() empties them in the same order.
    If2Array<ActionIf2Impl> _actions;
    If2Array<ParameterIf2Impl> _parameters;
    If2Array<AttributeIf2Impl> _attributes;
    If2Array<ContainmentIf2Impl> _containments;
    If2Array<DerivedTypeIf2Impl> _derivedTypes;
    If2Array<ValueRangeIf2Impl> _valueRanges;
    If2Array<EnumTypeIf2Impl> _enumTypes;
    If2Array<EnumLiteralIf2Impl> _enumLiterals;
    If2Array<GeneralPropertiesIf2Impl> _generalProperties;
    If2Array<MocIf2Impl> _mocs;
    If2Array<MomIf2Impl> _moms;
    If2Array<StructTypeIf2Impl> _structTypes;
    If2Array<StructMemberIf2Impl> _structMembers;
    If2Array<TypeContainerIf2Impl> _typeContainers;
    If2Array<AssociationEndIfImpl> _associationEnds;
    If2Array<BidirectionalAssociationIfImpl> _bidirectionalAssociations;
    If2Array<UnidirectionalAssociationIfImpl> _unidirectionalAssociations;
    If2Array<DomainExtensionIf2Impl> _domainExtensions;

    EntryIf2Impl _entry;

    // Value-initialised, so that a slot no interface class fills stays null.
    ZefOamSpiModelRepository_2 _if2{};
    ZefOamSpiEntry_2 _entry2{};
    ZefOamSpiGeneralProperties_2 _generalProperties2{};
    ZefOamSpiMom_2 _mom2{};
    ZefOamSpiMoc_2 _moc2{};
    ZefOamSpiContainment_2 _containment2{};
    ZefOamSpiTypeContainer_2 _typeContainer2{};
    ZefOamSpiDerived_2 _derived2{};
    ZefOamSpiEnum_2 _enum2{};
    ZefOamSpiStruct_2 _struct2{};
    ZefOamSpiAttribute_2 _attribute2{};
    ZefOamSpiAction_2 _action2{};

    ZefOamSpiModelRepository_3 _if3{};
    ZefOamSpiMrEntry_3 _entry3{};
    ZefOamSpiMrGeneralProperties_3 _generalProperties3{};
    ZefOamSpiMrMom_3 _mom3{};
    ZefOamSpiMrMoc_3 _moc3{};
    ZefOamSpiMrContainment_3 _containment3{};
    ZefOamSpiMrTypeContainer_3 _typeContainer3{};
    ZefOamSpiMrEnum_3 _enum3{};
    ZefOamSpiMrStruct_3 _struct3{};
    ZefOamSpiMrAttribute_3 _attribute3{};
    ZefOamSpiMrAction_3 _action3{};
    ZefOamSpiMrMoRef_3 _moRef3{};
    ZefOamSpiMrInt_3 _int3{};
    ZefOamSpiMrString_3 _string3{};
    ZefOamSpiMrFloat_3 _float3{};

    ZefOamSpiModelRepository_4 _if4{};
    ZefOamSpiMrEntry_4 _entry4{};
    ZefOamSpiMrGeneralProperties_4 _generalProperties4{};
    ZefOamSpiMrMom_4 _mom4{};
    ZefOamSpiMrMoc_4 _moc4{};
    ZefOamSpiMrContainment_4 _containment4{};
    ZefOamSpiMrAssociationEnd_4 _associationEnd4{};
    ZefOamSpiMrBiDirAssociation_4 _biDirAssociation4{};
    ZefOamSpiMrUniDirAssociation_4 _uniDirAssociation4{};
    ZefOamSpiMrTypeContainer_4 _typeContainer4{};
    ZefOamSpiMrEnum_4 _enum4{};
    ZefOamSpiMrStruct_4 _struct4{};
    ZefOamSpiMrAttribute_4 _attribute4{};
    ZefOamSpiMrAction_4 _action4{};
    ZefOamSpiMrMoRef_4 _moRef4{};
    ZefOamSpiMrInt_4 _int4{};
    ZefOamSpiMrString_4 _string4{};
    ZefOamSpiMrFloat_4 _float4{};

    ZefOamSpiModelRepository_4_1 _if4_1{};
    ZefOamSpiMrEntry_4_1 _entry4_1{};
    ZefOamSpiMrEnum_4_1 _enum4_1{};
    ZefOamSpiMrBiDirAssociation_4_1 _biDirAssociation4_1{};
    ZefOamSpiMrUniDirAssociation_4_1 _uniDirAssociation4_1{};
};

} // namespace ZefModelRepositoryService

#endif // ZEF_IF2_MANAGER_H
