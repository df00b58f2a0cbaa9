// What the history takes, and what becomes of the objects that it gives up.

#include <algorithm>
#include <utility>

#include "platform/arx/DbUndoState.h"

namespace {

std::size_t& Limit() {
    static std::size_t limit = 0;
    return limit;
}

/// Of the limit, this part is made free at once: not every further step is to drop another.
constexpr std::size_t kSpare = 16;

} // namespace

void AcDbUndo::setMemoryLimit(std::size_t bytes) {
    Limit() = bytes;
}

std::size_t AcDbUndo::memoryLimit() {
    return Limit();
}

std::size_t AcDbUndo::bytes() const {
    return m_pState->bytes;
}

std::size_t AcDbUndo::takeDropped() {
    return std::exchange(m_pState->dropped, 0);
}

void AcDbUndo::dropRedo() {
    if (!m_pState->isPassive() && m_pState->isRecording()) {
        m_pState->dropRedo();
    }
}

void AcDbUndo::State::dropRedo() {
    if (done < groups.size()) {
        const std::size_t kept = groups[done].first;
        noteLeft(kept, entries.size());
        for (std::size_t i = done; i < groups.size(); ++i) {
            bytes -= groups[i].bytes;
        }
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(kept), entries.end());
        groups.erase(groups.begin() + static_cast<std::ptrdiff_t>(done), groups.end());
        firstNoted = std::min(firstNoted, kept);
        measured = std::min(measured, done);
        bars.cut(kept);
    }
    release();
}

std::size_t AcDbUndo::State::measure(std::size_t group) const {
    std::size_t sum = sizeof(Group);
    for (std::size_t i = groups[group].first; i < endOf(group); ++i) {
        const Entry& entry = entries[i];
        sum += sizeof(Entry) + (entry.change ? entry.change->bytes() : 0);
        for (std::uint32_t j = 0; entry.kind != kExchanged && j < entry.count; ++j) {
            // An erased object is there for the history's sake alone.
            const AcDbObject& object = *database.object(AcDbObjectId(entry.first + j));
            sum += object.m_bErased ? object.bytes() : 0;
        }
    }
    return sum;
}

void AcDbUndo::State::measureNew() {
    for (; measured < groups.size(); ++measured) {
        groups[measured].bytes = measure(measured);
        bytes += groups[measured].bytes;
    }
}

void AcDbUndo::State::settle() {
    if (depth > 0 || isPassive()) {
        return;
    }
    measureNew();
    if (Limit() > 0 && bytes > Limit()) {
        const std::size_t most = std::min(done, groups.size() - 1);
        std::size_t count = 0;
        std::size_t rest = bytes;
        while (count < most && rest > Limit() - Limit() / kSpare) {
            rest -= groups[count++].bytes;
        }
        dropOldest(count);
    }
    release();
}

void AcDbUndo::State::dropOldest(std::size_t count) {
    if (count == 0) {
        return;
    }
    const std::size_t end = groups[count].first;
    noteLeft(0, end);
    // What is still open is to be noted again at its next change.
    forgetNotes(std::min(firstNoted, end), end);
    for (std::size_t i = 0; i < count; ++i) {
        bytes -= groups[i].bytes;
    }
    entries.erase(entries.begin(), entries.begin() + static_cast<std::ptrdiff_t>(end));
    groups.erase(groups.begin(), groups.begin() + static_cast<std::ptrdiff_t>(count));
    for (Group& group : groups) {
        group.first -= end;
    }
    bars.dropOldest(end);
    firstNoted -= end;
    measured -= count;
    done -= count;
    dropped += count;
}

void AcDbUndo::State::noteLeft(std::size_t firstEntry, std::size_t end) {
    for (std::size_t i = firstEntry; i < end; ++i) {
        const Entry& entry = entries[i];
        if (entry.first != 0 && (left.empty() || left.back().second != entry.first)) {
            left.emplace_back(entry.first, entry.first + entry.count);
        } else if (entry.first != 0) {
            left.back().second += entry.count;
        }
    }
    isReleaseDue = isReleaseDue || !left.empty();
}

/// Takes out what an entry still names, and what was changed off the record.
void AcDbUndo::State::passOverReachable(std::vector<std::uint32_t>& ids) const {
    std::vector<bool> isNamed(ids.size());
    for (const Entry& entry : entries) {
        if (ids.empty() || entry.first > ids.back() || entry.first + entry.count <= ids.front()) {
            continue;
        }
        auto at = std::lower_bound(ids.begin(), ids.end(), entry.first);
        for (; at != ids.end() && *at < entry.first + entry.count; ++at) {
            isNamed[static_cast<std::size_t>(at - ids.begin())] = true;
        }
    }
    std::size_t i = 0;
    std::erase_if(ids, [&](std::uint32_t id) {
        return isNamed[i++] || bars.holds(AcDbObjectId(id), UndoPart::Existence, 0);
    });
}

void AcDbUndo::State::release() {
    if (!isReleaseDue || isPassive() || !database.mayReleaseObjects()) {
        return;
    }
    isReleaseDue = false;
    std::vector<std::uint32_t> ids;
    for (const auto& [first, end] : std::exchange(left, {})) {
        for (std::uint32_t id = first; id < end; ++id) {
            const AcDbObject* const pObject = database.object(AcDbObjectId(id));
            if (pObject && pObject->m_bErased) {
                ids.push_back(id);
            }
        }
    }
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    passOverReachable(ids);
    std::erase_if(ids, [&](std::uint32_t id) {
        const AcDbObject& object = *database.object(AcDbObjectId(id));
        const bool isLater = object.isReadEnabled() || database.isRowLeft(object);
        if (isLater) {
            left.emplace_back(id, id + 1);
        }
        return isLater;
    });
    database.releaseObjects(ids);
}
