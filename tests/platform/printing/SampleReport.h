#pragma once

#include "platform/printing/PrintSurface.h"

namespace platform::testing {

/// The styles that reports use, as far as the sample needs them.
void AddSampleStyles(PrintSurface& surface);

/// Draws a document with one of everything: title, paragraphs, separator lines, tables with and
/// without borders, located and turned text, shapes, letters of many scripts.
void DrawSample(PrintSurface& surface);

} // namespace platform::testing
