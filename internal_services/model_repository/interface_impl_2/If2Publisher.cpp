#include "If2Publisher.h"

#include "ActionIf2Impl.h"
#include "AssociationEndIfImpl.h"
#include "AttributeIf2Impl.h"
#include "BidirectionalAssociationIfImpl.h"
#include "ContainmentIf2Impl.h"
#include "DdtWrapper.h"
#include "EnumTypeIf2Impl.h"
#include "MocIf2Impl.h"
#include "MocWrapper.h"
#include "MomIf2Impl.h"
#include "StructTypeIf2Impl.h"
#include "UnidirectionalAssociationIfImpl.h"

namespace ZefModelRepositoryService {

// Every object below belongs to the handle manager from its construction on.

void If2Publisher::publish(MomWrapper& mom) { new MomIf2Impl(mom); }

void If2Publisher::publish(MocWrapper& moc)
{
    new MocIf2Impl(moc);
    for (AttrWrapper* attr : moc.getAttrsList()) {
        new AttributeIf2Impl(*attr);
    }
    for (MoActionWrapper* action : moc.getMoActionList()) {
        new ActionIf2Impl(*action);
    }
}

void If2Publisher::publish(DdtWrapper& ddt) { ddt.registerIf2(); }

void If2Publisher::publish(EnumWrapper& enumeration) { new EnumTypeIf2Impl(enumeration); }

void If2Publisher::publish(StructWrapper& structure) { new StructTypeIf2Impl(structure); }

void If2Publisher::publish(ContWrapper& containment) { new ContainmentIf2Impl(containment); }

void If2Publisher::publish(AssociationEndWrapper& end) { new AssociationEndIfImpl(end); }

void If2Publisher::publish(BiDirAssociationWrapper& association) { new BidirectionalAssociationIfImpl(association); }

void If2Publisher::publish(UniDirAssociationWrapper& association)
{
    new UnidirectionalAssociationIfImpl(association);
}

} // namespace ZefModelRepositoryService
