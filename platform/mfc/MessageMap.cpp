#include "platform/mfc/MessageMap.h"

const MessageMap* CCmdTarget::GetMessageMap() const {
    return nullptr;
}

MessageThunk CCmdTarget::FindHandler(UINT message, UINT code, UINT id) const {
    for (const MessageMap* pMap = GetMessageMap(); pMap; pMap = pMap->pBase) {
        for (const MessageEntry& entry : pMap->entries) {
            if (entry.message == message && entry.code == code && id >= entry.firstId &&
                id <= entry.lastId) {
                return entry.thunk;
            }
        }
    }
    return nullptr;
}
