#ifndef ZEF_IF2_PUBLISHER_H
#define ZEF_IF2_PUBLISHER_H

namespace ZefModelRepositoryService {

class AssociationEndWrapper;
class BiDirAssociationWrapper;
class ContWrapper;
class DdtWrapper;
class EnumWrapper;
class MocWrapper;
class MomWrapper;
class StructWrapper;
class UniDirAssociationWrapper;

/// Makes a record of the repository reachable through the query interface:
/// creates its interface object and those of the records it contains, which
/// store their handles in the records.
///
/// An interface object refers to its record until the handle manager is
/// cleaned up, so only a record that a registry of the repository has
/// accepted may be published: a refused record is deleted at once.
class If2Publisher {
public:
    /// The MOM and its general properties with their domain extensions.
    /// Called once its children are read, so that every extension exists.
    static void publish(MomWrapper& mom);
    /// The class, then each attribute and each action (with its result
    /// type, parameters and their types) in list order.
    static void publish(MocWrapper& moc);
    /// The derived type and its value and length ranges.
    static void publish(DdtWrapper& ddt);
    /// The enumeration and its literals.
    static void publish(EnumWrapper& enumeration);
    /// The struct and its members with their types.
    static void publish(StructWrapper& structure);
    static void publish(ContWrapper& containment);
    static void publish(AssociationEndWrapper& end);
    static void publish(BiDirAssociationWrapper& association);
    static void publish(UniDirAssociationWrapper& association);

    If2Publisher() = delete;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_IF2_PUBLISHER_H
