/*
 * naming_check: an example static validator plug-in for zef_model_validator.
 *
 * It reads the compiled model through the version 4 query interface and
 * checks a naming convention that many model authors follow: class names
 * begin with an upper-case letter, attribute and action names with a
 * lower-case letter. It visits every class under the root class of each
 * MOM, following the containments down the tree.
 *
 * Build it against the installed headers:
 *     cc -shared -fPIC $(pkg-config --cflags zef_model_validator) \
 *        -o naming_check.so naming_check.c
 * and run it:
 *     zef_model_validator -p ./naming_check.so -d model/
 */
#include <ctype.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <ZefOamApiStaticValidator.h>
#include <ZefOamSpiModelRepository_4.h>

/* The result text belongs to the plug-in and must stay valid until finish. */
static char resultText[4096];
static size_t resultUsed;

/* Classes already checked: a class may be held by several parents. */
static uint64_t* visited;
static size_t visitedCount;
static size_t visitedCapacity;

static unsigned classCount;
static unsigned attributeCount;
static unsigned actionCount;
static unsigned offenceCount;

static void appendResult(const char* format, ...)
{
    va_list args;
    int written;
    if (resultUsed >= sizeof resultText) {
        return;
    }
    va_start(args, format);
    written = vsnprintf(resultText + resultUsed, sizeof resultText - resultUsed, format, args);
    va_end(args);
    if (written > 0) {
        resultUsed += (size_t)written;
    }
    if (resultUsed >= sizeof resultText) {
        resultUsed = sizeof resultText - 1;
    }
}

/* True when the class was seen before; otherwise remembers it. */
static int seenBefore(uint64_t moc)
{
    size_t i;
    for (i = 0; i < visitedCount; ++i) {
        if (visited[i] == moc) {
            return 1;
        }
    }
    if (visitedCount == visitedCapacity) {
        size_t capacity = visitedCapacity != 0 ? visitedCapacity * 2 : 64;
        uint64_t* grown = realloc(visited, capacity * sizeof *grown);
        if (grown == NULL) {
            return 1; /* out of memory: stop descending rather than crash */
        }
        visited = grown;
        visitedCapacity = capacity;
    }
    visited[visitedCount++] = moc;
    return 0;
}

static const char* nameOf(const ZefOamSpiModelRepository_4* mr, uint64_t generalProperties)
{
    const char* name = NULL;
    if (mr->generalProperties->getName(generalProperties, &name) != 0 || name == NULL) {
        return "";
    }
    return name;
}

static void expectCase(const char* what, const char* owner, const char* name, int upper)
{
    unsigned char first = (unsigned char)name[0];
    if (first != '\0' && (upper ? isupper(first) : islower(first))) {
        return;
    }
    ++offenceCount;
    appendResult("%s%s %s%s%s should begin with %s letter", offenceCount > 1 ? "; " : "", what, owner,
                 owner[0] != '\0' ? "." : "", name, upper ? "an upper-case" : "a lower-case");
}

static void checkClass(const ZefOamSpiModelRepository_4* mr, uint64_t moc)
{
    uint64_t generalProperties = 0;
    uint64_t member = 0;
    uint64_t containment = 0;
    const char* className;

    if (seenBefore(moc)) {
        return;
    }
    ++classCount;
    mr->moc->getGeneralProperties(moc, &generalProperties);
    className = nameOf(mr, generalProperties);
    expectCase("class", "", className, 1);

    if (mr->moc->getAttribute(moc, &member) == 0) {
        do {
            ++attributeCount;
            mr->attribute->getGeneralProperties(member, &generalProperties);
            expectCase("attribute", className, nameOf(mr, generalProperties), 0);
        } while (mr->attribute->getNext(member, &member) == 0);
    }
    if (mr->moc->getAction(moc, &member) == 0) {
        do {
            ++actionCount;
            mr->action->getGeneralProperties(member, &generalProperties);
            expectCase("action", className, nameOf(mr, generalProperties), 0);
        } while (mr->action->getNext(member, &member) == 0);
    }

    if (mr->moc->getChildContainment(moc, &containment) == 0) {
        do {
            uint64_t child = 0;
            if (mr->containment->getChildMoc(containment, &child) == 0) {
                checkClass(mr, child);
            }
        } while (mr->containment->getNextContainmentSameParentMoc(containment, &containment) == 0);
    }
}

static int check(const struct ZefOamSpiModelRepository_4* mr, const char** result)
{
    uint64_t mom = 0;

    resultUsed = 0;
    resultText[0] = '\0';
    classCount = attributeCount = actionCount = offenceCount = 0;
    visitedCount = 0;

    if (mr->entry->getMom(&mom) == 0) {
        do {
            uint64_t root = 0;
            if (mr->mom->getRootMoc(mom, &root) == 0) {
                checkClass(mr, root);
            }
        } while (mr->mom->getNext(mom, &mom) == 0);
    }

    if (offenceCount > 0) {
        *result = resultText;
        return 0;
    }
    appendResult("Checked %u classes, %u attributes and %u actions.", classCount, attributeCount, actionCount);
    *result = resultText;
    return 1;
}

static void finish(void)
{
    free(visited);
    visited = NULL;
    visitedCount = visitedCapacity = 0;
}

static const ZefOamApiStaticValidatorInterface_1 namingCheck = {"NamingCheck", "1.0", check, finish};

const ZefOamApiStaticValidatorInterface_1* getZefOamApiStaticValidatorInterface(void)
{
    return &namingCheck;
}
