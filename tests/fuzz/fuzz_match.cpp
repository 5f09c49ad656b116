// Proposals are those of the reference, and well formed. The first empty line parts the application
// columns from the file columns.

#include <set>

#include "matching/matchColumns.h"
#include "matching/reference/reference.h"
#include "tests/fuzz/fuzzing.h"

using namespace columnimport;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::vector<std::string> names = lines(data, size, 0);
    const auto parting = std::find(names.begin(), names.end(), "");
    const std::vector<std::string> app(names.begin(), parting);
    const std::vector<std::string> file(parting == names.end() ? parting : parting + 1,
                                        names.end());

    const std::vector<std::int32_t> proposal = matchColumns(app, file);
    require(proposal == reference::matchColumns(app, file), "the reference's proposal");
    require(proposal.size() == app.size(), "an entry for each application column");
    std::set<std::int32_t> used;
    for (const std::int32_t position : proposal) {
        require(position >= -1 && position < static_cast<std::int32_t>(file.size()) &&
                    (position == -1 || used.insert(position).second),
                "positions in the list, none twice");
    }
    return 0;
}
