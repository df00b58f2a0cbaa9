#include "host/storage/OpenGeoPackage.h"

#include <gdal_priv.h>
#include <mutex>
#include <ogrsf_frmts.h>
#include <utility>

namespace Tessaly {

namespace {

/// Milliseconds to wait for another program's write; a user waits with them.
constexpr const char* kBusyTimeout = "1000";
constexpr int kSynchronousFull = 2;

std::string Quote(const std::string& text, char mark) {
    std::string quoted(1, mark);
    for (const char c : text) {
        quoted.append(c == mark ? 2 : 1, c);
    }
    return quoted + mark;
}

} // namespace

OpenGeoPackage::OpenGeoPackage(const std::string& path, Mode mode)
    : m_path(path), m_number(FileNumberOf(path)) {
    // Only this format: other drivers look for their files everywhere, and take their time.
    static std::once_flag once;
    std::call_once(once, [] {
        if (!GetGDALDriverManager()->GetDriverByName("GPKG")) {
            RegisterOGRGeoPackage();
        }
    });
    const GdalSetting busy("SQLITE_BUSY_TIMEOUT", kBusyTimeout);
    if (mode == Mode::Read || mode == Mode::Write) {
        const GdalSetting synchronous("OGR_SQLITE_SYNCHRONOUS", "FULL");
        Open(path, mode);
    } else {
        const GdalSetting synchronous("OGR_SQLITE_SYNCHRONOUS", "OFF");
        const GdalSetting journal("OGR_SQLITE_JOURNAL", "MEMORY");
        Open(path, mode);
    }
    if (m_pDataset && mode == Mode::Write && !IsDurable()) {
        CPLError(CE_Failure, CPLE_AppDefined, "durable writing could not be switched on");
        GDALClose(std::exchange(m_pDataset, nullptr));
    }
}

void OpenGeoPackage::Open(const std::string& path, Mode mode) {
    static const char* const kDrivers[] = {"GPKG", nullptr};
    // Tables that the file does not announce are nobody's features.
    static const char* const kOptions[] = {"LIST_ALL_TABLES=NO", nullptr};
    if (mode == Mode::Create) {
        GDALDriver* pDriver = GetGDALDriverManager()->GetDriverByName("GPKG");
        m_pDataset =
            pDriver ? pDriver->Create(path.c_str(), 0, 0, 0, GDT_Unknown, nullptr) : nullptr;
        return;
    }
    const unsigned access = mode == Mode::Read ? GDAL_OF_READONLY : GDAL_OF_UPDATE;
    m_pDataset = GDALDataset::Open(path.c_str(), GDAL_OF_VECTOR | GDAL_OF_VERBOSE_ERROR | access,
                                   kDrivers, kOptions);
}

OpenGeoPackage::~OpenGeoPackage() {
    if (m_pDataset) {
        Rollback();
        GDALClose(m_pDataset);
    }
}

bool OpenGeoPackage::IsDurable() {
    int level = -1;
    Query("PRAGMA synchronous", [&](const OGRFeature& row) { level = row.GetFieldAsInteger(0); });
    return level >= kSynchronousFull;
}

OGRLayer* OpenGeoPackage::Table(const std::string& name) {
    return m_pDataset->GetLayerByName(name.c_str());
}

bool OpenGeoPackage::Execute(const std::string& sql) {
    CPLErrorReset();
    OGRLayer* pResult = m_pDataset->ExecuteSQL(sql.c_str(), nullptr, nullptr);
    if (pResult) {
        m_pDataset->ReleaseResultSet(pResult);
    }
    return CPLGetLastErrorType() < CE_Failure;
}

bool OpenGeoPackage::Query(const std::string& sql,
                           const std::function<void(const OGRFeature&)>& row) {
    CPLErrorReset();
    OGRLayer* pResult = m_pDataset->ExecuteSQL(sql.c_str(), nullptr, nullptr);
    if (!pResult) {
        return false;
    }
    while (const OGRFeatureUniquePtr feature{pResult->GetNextFeature()}) {
        row(*feature);
    }
    const bool isWhole = CPLGetLastErrorType() < CE_Failure;
    m_pDataset->ReleaseResultSet(pResult);
    return isWhole;
}

bool OpenGeoPackage::Begin() {
    m_bInTransaction = m_pDataset->StartTransaction() == OGRERR_NONE;
    return m_bInTransaction;
}

bool OpenGeoPackage::BeginWriting() {
    // GDAL has no transaction that begins with the lock, but any write takes it.
    if (!Begin() || !Execute("DELETE FROM gpkg_contents WHERE 0")) {
        return false;
    }
    // What is written into a file that lost its name is lost.
    const bool isSame = m_number == FileNumber() || FileNumberOf(m_path) == m_number;
    if (!isSame) {
        CPLError(CE_Failure, CPLE_AppDefined, "replaced while it was opened");
    }
    return isSame;
}

bool OpenGeoPackage::Commit() {
    CPLErrorReset();
    m_pDataset->FlushCache(false);
    if (CPLGetLastErrorType() >= CE_Failure || m_pDataset->CommitTransaction() != OGRERR_NONE) {
        return false;
    }
    m_bInTransaction = false;
    return true;
}

void OpenGeoPackage::Rollback() {
    if (m_bInTransaction) {
        m_pDataset->RollbackTransaction();
        m_bInTransaction = false;
    }
}

std::string QuoteName(const std::string& name) {
    return Quote(name, '"');
}

std::string QuoteText(const std::string& text) {
    return Quote(text, '\'');
}

} // namespace Tessaly
