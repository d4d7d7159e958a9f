#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "support/Picture.h"

/// Comparison with expected files, which stand in tests/data and change only after somebody has looked.
///
///     EXPECT_TRUE(MatchesExpected("KSTimeView/one-day.ops", Recorder.GetText()));
///     EXPECT_TRUE(MatchesExpected("KSTimeView/one-day.png", Picture));
///
/// A missing file fails. On a mismatch the actual result is written beside the expected file, as NAME.actual
/// or, for pictures, NAME.actual.png and NAME.difference.png (without the first .png), and the message tells
/// the first difference. `./test --accept NAME` rewrites the expected file instead; NAME may have wildcards.
namespace vcl::tests
{

/// Compares text, line by line in the message. Name is relative to tests/data.
::testing::AssertionResult MatchesExpected(std::string_view Name, std::string_view Actual);

/// Compares pictures; no colour part of a pixel may differ by more than Allowed, 0 to 255. Name is relative
/// to tests/data and ends in ".png".
::testing::AssertionResult MatchesExpected(std::string_view Name, const TPicture& Actual, int Allowed = 0);

/// The same two with the folder of the expected files given, for tests of the comparison itself.
::testing::AssertionResult MatchesExpectedIn(const std::string& Folder, std::string_view Name,
                                             std::string_view Actual);
::testing::AssertionResult MatchesExpectedIn(const std::string& Folder, std::string_view Name,
                                             const TPicture& Actual, int Allowed = 0);

/// The whole of a file in tests/data; a missing one raises std::runtime_error.
std::string ReadTestData(std::string_view Name);

} // namespace vcl::tests
