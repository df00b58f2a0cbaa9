#include "plugins/repository/RepositoryCommandId.h"

#include "siblings/giscore/utility/WholeNumber.h"

namespace Orvane::Repository {

namespace {

constexpr struct {
    std::wstring_view prefix;
    Verb verb;
} kVerbs[] = {
    {L"ADD_", Verb::Add},
    {L"EDIT_", Verb::Edit},
    {L"DEL_", Verb::Delete},
    {L"REN_", Verb::Rename},
    {L"COPY_", Verb::Copy},
    {L"SENDTO_", Verb::SendTo},
    {L"SETASDEFAULT_", Verb::SetAsDefault},
    {L"RUN_", Verb::Run},
    {L"DBLCLICK_", Verb::DoubleClick},
    {L"QRYDROP_", Verb::QueryDrop},
    {L"RPODROP_", Verb::ItemDrop},
};

} // namespace

std::optional<RepositoryCommandId> ParseRepositoryCommandId(std::wstring_view id) {
    for (const auto& [prefix, verb] : kVerbs) {
        if (!id.starts_with(prefix) || id.size() == prefix.size()) {
            continue;
        }
        const std::wstring_view family = id.substr(prefix.size());
        const std::size_t last = family.find_last_of(L'_');
        const auto number = last == std::wstring_view::npos || last == 0
                                ? std::nullopt
                                : WholeNumber(family.substr(last + 1));
        return number ? RepositoryCommandId{verb, family.substr(0, last),
                                            static_cast<enmEntityType>(*number)}
                      : RepositoryCommandId{verb, family, EntityNone};
    }
    return std::nullopt;
}

} // namespace Orvane::Repository
