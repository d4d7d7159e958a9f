#pragma once

/// Makes the bitmaps of the two marks known as ITEMS_ABOVE_BITMAP and ITEMS_BELOW_BITMAP. Names that a
/// program has registered with pictures of its own stay as they are; calling it again does nothing.
void RegisterTimeViewMarks();
