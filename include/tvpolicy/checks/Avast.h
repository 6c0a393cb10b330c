#pragma once

#include <string>

#include <tvpolicy/export.h>

/// Reading Avast virus databases.
class TVPOLICY_API Avast {
public:
    Avast() = delete;

    /// The definition date of the database at `path` as "year-month-day" (2011-03-15), taken
    /// from the ten bytes at offset 241 ("15.03.2011"). Bytes that cannot be read count as '0',
    /// so an unreadable file gives "0000-00-00"; the text is not checked further.
    static std::string getDefinitionDate(std::string path);
};
