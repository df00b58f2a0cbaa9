// What users are asked when a drawing cannot simply be written into its file: another program
// saved it meanwhile, has it open, or the drawing was opened read-only.
#pragma once

#include "platform/arx/ApDocManager.h"

namespace Tessaly {

enum class ConflictChoice {
    Cancel,
    SaveAs,
    SaveAgain, ///< what was in the way is settled
};

/// After a save was refused for a conflict: shows what differs and takes over the other's
/// changes, as the user wants.
ConflictChoice SettleConflict(AcApDocument& document, const AcDbConflict& conflict);
/// Before a read-only drawing is written.
ConflictChoice SettleReadOnly(AcApDocument& document);

/// Whether the drawing may be put in the place of its own file, whatever others saved there.
bool MayReplaceOwnFile(const AcApDocument& document);

/// Names the other programs that have a file open. False if there are none.
bool TellOthersWith(const CString& path);
/// After a drawing was opened that others have open, too.
void OfferReadOnly(AcApDocument& document, bool isAsked);

/// What OPEN does with a drawing that others have open.
enum class SharedOpening {
    Open,     ///< as any other, with a line that names them
    Ask,      ///< whether it is to be read-only
    ReadOnly, ///< without asking
};
void SetSharedOpening(SharedOpening shared);

} // namespace Tessaly
