// The platform's own messages to the user. Internal to the platform.
#pragma once

#include "platform/win/MessageCatalogue.h"

enum class PlatformMsg : int {
    Ok = 235,
    Cancel = 900340,
    NotAChoice = 900419, // arguments: answer, choices
    Yes = 900460,
    No = 900461,
    // Operating system errors.
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
    OtherError = 910014, // arguments: number, the system's own text
    NewDrawing = 910015, // argument: number
    // Settings files; arguments: file, line.
    NotKeyAndValue = 910020,
    ValueBeforeSection = 910021,
    // Commands and failures.
    UnknownException = 911011,
    Failed = 911012,         // arguments: failed step, reason
    UnknownCommand = 911015, // argument: the typed text
    DocumentEvent = 910041,
    SaveEvent = 910042,
    ClosingEvent = 910043,
    WindowMessage = 910044,
    // Modules; first argument: file.
    NotALibrary = 910022,
    LibraryIsCut = 910023, // further arguments: its size, the required size
    NoEntryPoint = 910024,
    OtherInterface = 910025, // further arguments: both versions
    RefusedToStart = 910026,
    // Drawing files.
    NoFileNamed = 910030,
    CannotOpen = 910031,
    HasNoFile = 910032,
    CannotSave = 910033,
    FileInUse = 910034,
    OpenReadOnly = 951040,
    NotRegularFile = 951041,
    // Prompts.
    EntityNumber = 910035,
    ColorNumber = 910036, // argument: the highest number
    NotAColor = 910037,   // argument: the answer
    Color = 910038,
};
