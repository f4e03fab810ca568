/*
 * A reader of the model query interface written in plain C against the
 * public headers only, the way a static validator plug-in reads the model:
 * it starts at the first MOM and reaches every kind of element through the
 * version 4 tables, "first" and "next" getters, and the property tables of
 * the type containers.
 */
#include "QueryInterfaceWalker.h"

#include <stdarg.h>
#include <stdio.h>
#include <string.h>

#include "ZefOamSpiModelRepository_4.h"

typedef struct Walk {
    const ZefOamSpiModelRepository_4* mr;
    char* text;
    size_t size;
    size_t used;
    int failure;
} Walk;

static void put(Walk* walk, const char* format, ...)
{
    va_list args;
    int written;
    if (walk->used >= walk->size) {
        return;
    }
    va_start(args, format);
    written = vsnprintf(walk->text + walk->used, walk->size - walk->used, format, args);
    va_end(args);
    if (written > 0) {
        walk->used += (size_t)written;
    }
}

/* Keeps the first real failure; -2 (nothing there) is an answer. */
static int ok(Walk* walk, ZefReturnT result)
{
    if (result != 0 && result != -2 && walk->failure == 0) {
        walk->failure = result;
    }
    return result == 0;
}

static const char* orNull(const char* text)
{
    return text != NULL ? text : "(null)";
}

static const char* nameOf(Walk* walk, uint64_t generalProperties)
{
    const char* name = NULL;
    ok(walk, walk->mr->generalProperties->getName(generalProperties, &name));
    return orNull(name);
}

static void putExtensions(Walk* walk, uint64_t generalProperties)
{
    const ZefOamSpiMrGeneralProperties_4* gp = walk->mr->generalProperties;
    const uint64_t* handles = NULL;
    const char* domain = NULL;
    const char* name = NULL;
    const char* value = NULL;
    size_t i;
    if (!ok(walk, gp->getDomainExtensions(generalProperties, &handles))) {
        return;
    }
    for (i = 0; handles[i] != 0; ++i) {
        ok(walk, gp->domainExtensionGetDomain(handles[i], &domain));
        ok(walk, gp->domainExtensionGetName(handles[i], &name));
        ok(walk, gp->domainExtensionGetValue(handles[i], &value));
        put(walk, " ext %s/%s=%s", domain, name, value);
    }
}

static void putDerived(Walk* walk, uint64_t tc, uint64_t derived)
{
    const ZefOamSpiModelRepository_4* mr = walk->mr;
    uint64_t gp = 0;
    uint64_t range = 0;
    ZefOamSpiMrType_4 base = ZefMrType4NotSet;
    int64_t number = 0;
    int64_t min = 0;
    int64_t max = 0;
    double real = 0;
    const char* text = NULL;
    bool flag = false;
    ok(walk, mr->typeContainer->derivedTypeGetGeneralProperties(derived, &gp));
    ok(walk, mr->typeContainer->derivedTypeGetType(derived, &base));
    put(walk, " derived %s base %d", nameOf(walk, gp), (int)base);
    if (base == ZefMrType4String) {
        ok(walk, mr->stringType->getStringProperty(tc, ZefMrStringProperty4Pattern, &text));
        put(walk, " pattern %s", orNull(text));
        ok(walk, mr->stringType->getStringProperty(tc, ZefMrStringProperty4ExceptionText, &text));
        put(walk, " exception \"%s\"", orNull(text));
        ok(walk, mr->stringType->getBoolProperty(tc, ZefMrStringProperty4IsPassphrase, &flag));
        put(walk, " passphrase %d", (int)flag);
        if (ok(walk, mr->stringType->getHandleProperty(tc, ZefMrStringProperty4FirstLengthRange, &range))) {
            do {
                ok(walk, mr->stringType->rangeGetMin(range, &min));
                ok(walk, mr->stringType->rangeGetMax(range, &max));
                put(walk, " length %lld..%lld", (long long)min, (long long)max);
            } while (ok(walk, mr->stringType->rangeGetNext(range, &range)));
        }
    } else if (base == ZefMrType4Double) {
        ok(walk, mr->floatType->getStringProperty(tc, ZefMrFloatProperty4Resolution, &text));
        ok(walk, mr->floatType->getFloatProperty(tc, ZefMrFloatProperty4Resolution, &real));
        put(walk, " resolution %s (%g)", orNull(text), real);
        if (ok(walk, mr->floatType->getHandleProperty(tc, ZefMrFloatProperty4FirstRange, &range))) {
            do {
                double low = 0;
                double high = 0;
                ok(walk, mr->floatType->rangeGetMin(range, &low));
                ok(walk, mr->floatType->rangeGetMax(range, &high));
                put(walk, " range %g..%g", low, high);
            } while (ok(walk, mr->floatType->rangeGetNext(range, &range)));
        }
    } else {
        ok(walk, mr->intType->getIntProperty(tc, ZefMrIntProperty4Resolution, &number));
        put(walk, " resolution %lld", (long long)number);
        if (ok(walk, mr->intType->getHandleProperty(tc, ZefMrIntProperty4FirstRange, &range))) {
            do {
                ok(walk, mr->intType->rangeGetMin(range, &min));
                ok(walk, mr->intType->rangeGetMax(range, &max));
                put(walk, " range %lld..%lld", (long long)min, (long long)max);
            } while (ok(walk, mr->intType->rangeGetNext(range, &range)));
        }
    }
}

static void putType(Walk* walk, uint64_t tc)
{
    const ZefOamSpiModelRepository_4* mr = walk->mr;
    ZefOamSpiMrType_4 type = ZefMrType4NotSet;
    uint64_t handle = 0;
    uint64_t gp = 0;
    uint64_t min = 0;
    uint64_t max = 0;
    const char* const* defaults = NULL;
    ok(walk, mr->typeContainer->getType(tc, &type));
    ok(walk, mr->typeContainer->getMultiplicityMin(tc, &min));
    ok(walk, mr->typeContainer->getMultiplicityMax(tc, &max));
    put(walk, " type %d [%llu..%llu]", (int)type, (unsigned long long)min, (unsigned long long)max);
    if (ok(walk, mr->typeContainer->getDefaultValue(tc, &defaults))) {
        for (; *defaults != NULL; ++defaults) {
            put(walk, " default %s", *defaults);
        }
    }
    if (ok(walk, mr->typeContainer->getDerived(tc, &handle))) {
        putDerived(walk, tc, handle);
    }
    if (ok(walk, mr->typeContainer->getEnum(tc, &handle))) {
        uint64_t literal = 0;
        ok(walk, mr->enumType->getGeneralProperties(handle, &gp));
        put(walk, " enum %s", nameOf(walk, gp));
        if (ok(walk, mr->enumType->getLiteral(handle, &literal))) {
            do {
                int64_t value = 0;
                ok(walk, mr->enumType->literalGetGeneralProperties(literal, &gp));
                ok(walk, mr->enumType->literalGetValue(literal, &value));
                put(walk, " %s=%lld", nameOf(walk, gp), (long long)value);
            } while (ok(walk, mr->enumType->literalGetNext(literal, &literal)));
        }
    }
    if (ok(walk, mr->typeContainer->getStruct(tc, &handle))) {
        uint64_t member = 0;
        bool exclusive = false;
        ok(walk, mr->structType->getGeneralProperties(handle, &gp));
        ok(walk, mr->structType->getIsExclusive(handle, &exclusive));
        put(walk, " struct %s exclusive %d", nameOf(walk, gp), (int)exclusive);
        if (ok(walk, mr->structType->getMember(handle, &member))) {
            do {
                uint64_t memberType = 0;
                ZefOamSpiMrType_4 code = ZefMrType4NotSet;
                ok(walk, mr->structType->memberGetGeneralProperties(member, &gp));
                ok(walk, mr->structType->memberGetTypeContainer(member, &memberType));
                ok(walk, mr->typeContainer->getType(memberType, &code));
                put(walk, " %s:%d", nameOf(walk, gp), (int)code);
            } while (ok(walk, mr->structType->memberGetNext(member, &member)));
        }
    }
    if (ok(walk, mr->moRef->getHandleProperty(tc, ZefMrMoRefProperty4Moc, &handle))) {
        ok(walk, mr->moc->getGeneralProperties(handle, &gp));
        put(walk, " ref %s", nameOf(walk, gp));
    }
}

static void putAttributes(Walk* walk, uint64_t moc)
{
    const ZefOamSpiMrAttribute_4* attribute = walk->mr->attribute;
    uint64_t attr = 0;
    if (!ok(walk, walk->mr->moc->getAttribute(moc, &attr))) {
        return;
    }
    do {
        uint64_t gp = 0;
        uint64_t tc = 0;
        bool key = false;
        const char* unit = NULL;
        ok(walk, attribute->getGeneralProperties(attr, &gp));
        ok(walk, attribute->getIsKey(attr, &key));
        ok(walk, attribute->getUnit(attr, &unit));
        put(walk, "  attribute %s key %d unit %s", nameOf(walk, gp), (int)key, orNull(unit));
        ok(walk, attribute->getTypeContainer(attr, &tc));
        putType(walk, tc);
        put(walk, "\n");
    } while (ok(walk, attribute->getNext(attr, &attr)));
}

static void putActions(Walk* walk, uint64_t moc)
{
    const ZefOamSpiMrAction_4* action = walk->mr->action;
    uint64_t act = 0;
    if (!ok(walk, walk->mr->moc->getAction(moc, &act))) {
        return;
    }
    do {
        uint64_t gp = 0;
        uint64_t tc = 0;
        uint64_t parameter = 0;
        ok(walk, action->getGeneralProperties(act, &gp));
        put(walk, "  action %s returns", nameOf(walk, gp));
        ok(walk, action->getTypeContainer(act, &tc));
        putType(walk, tc);
        put(walk, "\n");
        if (ok(walk, action->getParameter(act, &parameter))) {
            do {
                ok(walk, action->parameterGetGeneralProperties(parameter, &gp));
                ok(walk, action->parameterGetTypeContainer(parameter, &tc));
                put(walk, "   parameter %s", nameOf(walk, gp));
                putType(walk, tc);
                put(walk, "\n");
            } while (ok(walk, action->parameterGetNext(parameter, &parameter)));
        }
    } while (ok(walk, action->getNext(act, &act)));
}

static void putEnd(Walk* walk, const char* label, uint64_t end)
{
    const ZefOamSpiMrAssociationEnd_4* ends = walk->mr->associationEnd;
    const char* name = NULL;
    const char* classifier = NULL;
    uint64_t lower = 0;
    uint64_t upper = 0;
    bool reserving = false;
    ok(walk, ends->getName(end, &name));
    ok(walk, ends->getClassifier(end, &classifier));
    ok(walk, ends->getLower(end, &lower));
    ok(walk, ends->getUpper(end, &upper));
    ok(walk, ends->isReserving(end, &reserving));
    put(walk, " %s %s(%s) %llu..%llu reserving %d", label, orNull(name), orNull(classifier),
        (unsigned long long)lower, (unsigned long long)upper, (int)reserving);
}

static void putAssociations(Walk* walk, uint64_t moc)
{
    const ZefOamSpiModelRepository_4* mr = walk->mr;
    uint64_t association = 0;
    uint64_t gp = 0;
    uint64_t end = 0;
    if (ok(walk, mr->moc->getFirstBiDirAssociation(moc, &association))) {
        do {
            ok(walk, mr->biDirAssociation->getGeneralProperties(association, &gp));
            put(walk, "  bidirectional %s", nameOf(walk, gp));
            ok(walk, mr->biDirAssociation->getFirstAssociation(association, &end));
            putEnd(walk, "first", end);
            ok(walk, mr->biDirAssociation->getSecondAssociation(association, &end));
            putEnd(walk, "second", end);
            put(walk, "\n");
        } while (ok(walk, mr->biDirAssociation->getNextBidirectionalAssociation(association, moc, &association)));
    }
    if (ok(walk, mr->moc->getFirstUniDirAssociation(moc, &association))) {
        do {
            bool external = false;
            ok(walk, mr->uniDirAssociation->getGeneralProperties(association, &gp));
            ok(walk, mr->uniDirAssociation->getIsExternal(association, &external));
            put(walk, "  unidirectional %s external %d", nameOf(walk, gp), (int)external);
            ok(walk, mr->uniDirAssociation->getAssociationEnd(association, &end));
            putEnd(walk, "end", end);
            put(walk, "\n");
        } while (ok(walk, mr->uniDirAssociation->getNextUnidirectionalAssociationSameMoc(association, &association)));
    }
}

/* A class, then the classes it holds, depth first. */
static void putClass(Walk* walk, uint64_t moc, int depth)
{
    const ZefOamSpiModelRepository_4* mr = walk->mr;
    uint64_t gp = 0;
    uint64_t containment = 0;
    bool root = false;
    bool readOnly = false;
    const char* constraint = NULL;
    if (depth > 16) {
        return;
    }
    ok(walk, mr->moc->getGeneralProperties(moc, &gp));
    ok(walk, mr->moc->getIsRoot(moc, &root));
    ok(walk, mr->moc->getIsReadOnly(moc, &readOnly));
    ok(walk, mr->moc->getConstraint(moc, &constraint));
    put(walk, " class %s root %d readOnly %d constraint %s\n", nameOf(walk, gp), (int)root, (int)readOnly,
        orNull(constraint));
    putAttributes(walk, moc);
    putActions(walk, moc);
    putAssociations(walk, moc);
    if (ok(walk, mr->moc->getChildContainment(moc, &containment))) {
        do {
            uint64_t child = 0;
            uint64_t min = 0;
            uint64_t max = 0;
            ok(walk, mr->containment->getGeneralProperties(containment, &gp));
            ok(walk, mr->containment->getCardinalityMin(containment, &min));
            ok(walk, mr->containment->getCardinalityMax(containment, &max));
            put(walk, "  contains %s [%llu..%llu]\n", nameOf(walk, gp), (unsigned long long)min,
                (unsigned long long)max);
            if (ok(walk, mr->containment->getChildMoc(containment, &child))) {
                putClass(walk, child, depth + 1);
            }
        } while (ok(walk, mr->containment->getNextContainmentSameParentMoc(containment, &containment)));
    }
}

int zefTestWalkModel(const struct ZefOamSpiModelRepository_4* mr, char* text, size_t size)
{
    Walk walk;
    uint64_t mom = 0;
    walk.mr = mr;
    walk.text = text;
    walk.size = size;
    walk.used = 0;
    walk.failure = 0;
    if (size > 0) {
        text[0] = '\0';
    }
    if (!ok(&walk, mr->entry->getMom(&mom))) {
        return walk.failure;
    }
    do {
        uint64_t gp = 0;
        uint64_t root = 0;
        const char* version = NULL;
        const char* const* features = NULL;
        ok(&walk, mr->mom->getGeneralProperties(mom, &gp));
        ok(&walk, mr->mom->getVersion(mom, &version));
        put(&walk, "mom %s %s", nameOf(&walk, gp), orNull(version));
        if (ok(&walk, mr->mom->getModelFeatures(mom, &features))) {
            for (; *features != NULL; ++features) {
                put(&walk, " feature %s", *features);
            }
        }
        putExtensions(&walk, gp);
        put(&walk, "\n");
        if (ok(&walk, mr->mom->getRootMoc(mom, &root))) {
            putClass(&walk, root, 0);
        }
    } while (ok(&walk, mr->mom->getNext(mom, &mom)));
    return walk.failure;
}
