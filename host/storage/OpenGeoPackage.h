// A GeoPackage that is open, and the few operations on it that reading and writing share.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "host/storage/GdalErrors.h"
#include "host/storage/SystemFile.h"

class GDALDataset;
class OGRFeature;
class OGRLayer;

namespace Tessaly {

/// Closes with its end. What goes wrong is in the errors that it was made with.
class OpenGeoPackage {
public:
    enum class Mode {
        Read,
        Write,  ///< in place: every commit is on the disk before it counts
        Draft,  ///< a file that nobody else knows yet: fast, the disk is asked once at its end
        Create, ///< a new draft
    };

    OpenGeoPackage(const std::string& path, Mode mode);
    ~OpenGeoPackage();
    OpenGeoPackage(const OpenGeoPackage&) = delete;
    OpenGeoPackage& operator=(const OpenGeoPackage&) = delete;

    bool IsOpen() const { return m_pDataset != nullptr; }
    GDALDataset& Dataset() { return *m_pDataset; }
    /// Null if there is no table of the name.
    OGRLayer* Table(const std::string& name);
    bool Execute(const std::string& sql);
    /// Calls for each row of the result.
    bool Query(const std::string& sql, const std::function<void(const OGRFeature&)>& row);

    bool Begin();
    /// The same for a write: another program's is waited for now, which is not possible once
    /// something was read. Fails if another file has meanwhile taken the place of this one.
    bool BeginWriting();
    /// Everything to the disk, or nothing of it.
    bool Commit();
    void Rollback();

private:
    void Open(const std::string& path, Mode mode);
    bool IsDurable();

    std::string m_path;
    FileNumber m_number; ///< of the file when it was opened
    GDALDataset* m_pDataset = nullptr;
    bool m_bInTransaction = false;
};

/// With which the names of such files end: the libraries refuse others.
inline constexpr std::string_view kGeoPackageExtension = ".gpkg";

/// A name (a text) as it stands in SQL.
std::string QuoteName(const std::string& name);
std::string QuoteText(const std::string& text);

} // namespace Tessaly
