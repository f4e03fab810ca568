/* mom_list: lists the MOMs of the model with their versions. */
#include <stdio.h>

#include <ZefOamApiStaticValidator.h>
#include <ZefOamSpiModelRepository_4.h>

static char text[1024];

static int check(const struct ZefOamSpiModelRepository_4* mr, const char** result)
{
    uint64_t mom = 0;
    size_t used = 0;
    text[0] = '\0';
    if (mr->entry->getMom(&mom) != 0) {
        *result = "The model holds no MOM.";
        return 0; /* failed */
    }
    do {
        uint64_t properties = 0;
        const char* name = "";
        const char* version = "";
        mr->mom->getGeneralProperties(mom, &properties);
        mr->generalProperties->getName(properties, &name);
        mr->mom->getVersion(mom, &version);
        if (used < sizeof text) {
            used += (size_t)snprintf(text + used, sizeof text - used, "%s%s %s", used > 0 ? ", " : "MOMs: ",
                                     name, version);
        }
    } while (mr->mom->getNext(mom, &mom) == 0);
    *result = text; /* passed, with information */
    return 1;
}

static void finish(void) {}

static const ZefOamApiStaticValidatorInterface_1 momList = {"MomList", "1.0", check, finish};

const ZefOamApiStaticValidatorInterface_1* getZefOamApiStaticValidatorInterface(void)
{
    return &momList;
}
