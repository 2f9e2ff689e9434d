#pragma once

namespace torvane::bench {

class Sample;

// Each prints its lines.

// Pages of the lists, as the records read them.
void lists(Sample& sample);
// Storing and loading an estimate of 1,000 lines.
void estimates(Sample& sample);
// The estimate screen on such an estimate and on the largest catalogue.
void screens(Sample& sample);
// The windows of the catalogue at its largest.
void masters(Sample& sample);
// The item sheet on the largest catalogue, and the reports on every estimate.
void sheetAndReports(Sample& sample);
// From the start of the process to the painted main window.
void start(Sample& sample);

}  // namespace torvane::bench
