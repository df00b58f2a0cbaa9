// Small files beside drawings by which programs tell each other that they have them open. They
// advise and lock nothing: of a program that died, nothing is left that counts.
#pragma once

#include <condition_variable>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/arx/DbConflict.h"

class AcDbDatabase;

namespace Tessaly {

/// Marks that this process has set; they go with this.
class OpenMarks {
public:
    OpenMarks() = default;
    ~OpenMarks();
    OpenMarks(const OpenMarks&) = delete;
    OpenMarks& operator=(const OpenMarks&) = delete;

    /// One mark a database. Where the folder cannot be written to, there is none.
    void Set(const AcDbDatabase& database, const std::string& path);
    void Remove(const AcDbDatabase& database);

    /// Other processes that have set one and live: on this machine by their number and start,
    /// on others while they keep their mark young. Marks of dead ones are removed.
    static std::vector<AcDbOpenMark> Others(const std::string& path);

private:
    void KeepYoung(const std::stop_token& stop);

    std::mutex m_mutex;
    std::condition_variable_any m_wake;
    std::map<const AcDbDatabase*, std::string> m_marks; ///< files
    std::jthread m_keeper;                              ///< started with the first mark
};

} // namespace Tessaly
