// A query read from any text is unchanged after writing and reading it again.
#include <boost/make_shared.hpp>
#include <cstdlib>

#include "platform/win/CodePage.h"
#include "siblings/giscore/query/QueryMatcher.h"
#include "siblings/giscore/repository/RepositoryItemFactory.h"
#include "siblings/giscore/repository/RepositoryManager.h"

namespace {

class QueryItems final : public Orvane::CRepositoryItemFactory {
    boost::shared_ptr<Orvane::CRepositoryItem> CreateItem(const wchar_t* guid,
                                                          const wchar_t* name) override {
        return boost::make_shared<Orvane::Query::CQueryDefinition>(guid, name);
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static QueryItems factory;
    Orvane::CRepositoryManager::Instance()->RegisterRepositoryItemFactory(L"QUERY", &factory);
    const CString text = Utf8ToWide({reinterpret_cast<const char*>(data), size});
    CString reason;
    const auto item = Orvane::ReadRepositoryItem(text, L"QUERY", reason);
    if (item.get() == nullptr) {
        return reason.IsEmpty() ? (std::abort(), 0) : 0;
    }
    const auto again = Orvane::ReadRepositoryItem(item->GetXML(), L"QUERY", reason);
    if (!again || again->GetXML() != item->GetXML()) {
        std::abort();
    }
    Orvane::Query::QueryMatcher(static_cast<const Orvane::Query::CQueryDefinition&>(*item))
        .Matches([](AcDbNameId) { return AcDbValue("12.5"); });
    return 0;
}
