// The platform's own messages to the user. Internal to the platform.
#pragma once

#include "platform/win/MessageCatalogue.h"

enum class PlatformMsg : int {
    Ok = 235,
    Cancel = 900340,
    NotAChoice = 900419, // with the answer and the choices
    Yes = 900460,
    No = 900461,
    // Errors of the operating system.
    NoSuchFile = 910000,
    NoPermission = 910001,
    IsFolder = 910002,
    IsNotFolder = 910003,
    Exists = 910004,
    DiskFull = 910005,
    ReadOnly = 910006,
    NameTooLong = 910007,
    InputOutput = 910008,
    TooManyLinks = 910009,
    TooManyFiles = 910010,
    TooLarge = 910011,
    Busy = 910012,
    NotEmpty = 910013,
    OtherError = 910014, // with the number and the system's own text
    NewDrawing = 910015, // with the number
    // Settings files; each with file and line.
    NotKeyAndValue = 910020,
    ValueBeforeSection = 910021,
    // Commands and what fails.
    UnknownException = 911011,
    Failed = 911012,         // what, and the reason
    UnknownCommand = 911015, // with what was typed
    DocumentEvent = 910041,
    SaveEvent = 910042,
    ClosingEvent = 910043,
    WindowMessage = 910044,
    // Modules; each with the file.
    NotALibrary = 910022,
    LibraryIsCut = 910023, // and its size, and the size needed
    NoEntryPoint = 910024,
    OtherInterface = 910025, // and both versions
    RefusedToStart = 910026,
    // Files of drawings.
    NoFileNamed = 910030,
    CannotOpen = 910031,
    HasNoFile = 910032,
    CannotSave = 910033,
    FileInUse = 910034,
    // Prompts.
    EntityNumber = 910035,
    ColorNumber = 910036, // with the highest number
    NotAColor = 910037,   // with the answer
    Color = 910038,
};
