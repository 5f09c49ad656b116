// Normal forms obey their laws and are those of the reference.

#include "matching/normalizeColumnName.h"
#include "matching/reference/reference.h"
#include "tests/fuzz/fuzzing.h"

using namespace columnimport;
using fuzzing::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string written(reinterpret_cast<const char *>(data), size);
    const std::string name = normalizeColumnName(written);
    require(name == reference::normalizeColumnName(written), "the reference's form",
            {written, name});
    require(name.empty() == written.empty(), "empty only for an empty name", {written, name});
    require(name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_") == std::string::npos,
            "lower-case letters, digits and underscores", {written, name});
    require(normalizeColumnName(name) == name, "normalised once for all", {written, name});

    const std::vector<std::string> texts = fuzzing::lines(data, size);
    if (texts.size() >= 3 && !texts[1].empty()) {
        require(replaceAll(texts[0], texts[1], texts[2]) ==
                    reference::replaceAll(texts[0], texts[1], texts[2]),
                "the reference's replacement", texts);
    }
    return 0;
}
