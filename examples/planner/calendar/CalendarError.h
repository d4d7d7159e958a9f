#pragma once

#include <stdexcept>
#include <string>

namespace planner
{

/// A calendar that cannot be read; what() is "FILE:LINE: REASON", or "FILE: REASON" when no line is to blame.
class ECalendarError : public std::runtime_error
{
public:
    ECalendarError(const std::string& FileName, int Line, const std::string& Reason)
        : std::runtime_error(FileName + (Line > 0 ? ":" + std::to_string(Line) : std::string()) + ": " +
                             Reason),
          FFileName(FileName), FLine(Line), FReason(Reason)
    {
    }

    const std::string& GetFileName() const { return FFileName; }
    /// Counted from 1; 0 when no line is to blame.
    int GetLine() const { return FLine; }
    const std::string& GetReason() const { return FReason; }

private:
    std::string FFileName;
    int FLine;
    std::string FReason;
};

} // namespace planner
