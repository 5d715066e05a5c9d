#pragma once

/// Another program has changed stored schemes since they were loaded here.
struct SchemeConflict
{
    int iSchemes = 0; ///< how many of its changes a save would undo, or leave although they are not shown
    int iBoth = 0;    ///< those of them that were changed here too
};

/// What the operator wants to be done about it.
enum class SchemeConflictAnswer
{
    Cancel,     ///< nothing is saved
    Reload,     ///< nothing is saved, the schemes are loaded anew
    SaveOver,   ///< the file becomes what is shown here
    KeepOthers, ///< only schemes that were changed here are written, the others stay as they are stored
};
