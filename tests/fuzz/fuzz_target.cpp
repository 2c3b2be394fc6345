// One libFuzzer target: KEELHOLD_FUZZ_TARGET names the entry it feeds.
#include "FuzzEntries.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    FuzzEntries::prepare();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const FuzzEntries::Target *const target = FuzzEntries::target(u"" KEELHOLD_FUZZ_TARGET);
    const QString broken
        = target->run(QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size)));
    if (!broken.isEmpty()) {
        std::fprintf(stderr, "%s: %s\n", KEELHOLD_FUZZ_TARGET, qPrintable(broken));
        std::abort();
    }
    return 0;
}
