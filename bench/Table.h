// Timing side by side, and the table of what came out.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Seconds that `work` takes.
double Seconds(const std::function<void()>& work);

/// Median of the values; 0 for none.
double Median(std::vector<double> values);

/// Runs both in turn, `rounds` times after one round that does not count, and gives the medians of their
/// seconds.
struct Pair {
    double ours;
    double other;
};
Pair SideBySide(int rounds, const std::function<void()>& ours, const std::function<void()>& other);

/// One line of the table: what was measured, the figure with its unit, the target, and whether it was met.
struct Line {
    std::string what;
    double value;
    std::string unit;
    double limit;
    bool atLeast = false;  ///< the limit is a lower one
    std::string detail;
};

/// Prints the table as it stands in the README.
void Print(const std::vector<Line>& lines);

// The figures, by subject.
void MeasurePainting(std::vector<Line>& lines);
void MeasureHitTests(std::vector<Line>& lines);
void MeasureDocument(std::vector<Line>& lines);
void MeasureStudio(std::vector<Line>& lines);
void MeasureScaling(std::vector<Line>& lines);
void MeasureFilters(std::vector<Line>& lines);
void MeasureStart(std::vector<Line>& lines);

/// The program that Studio's start is measured against: an empty window. Returns the exit code.
int ShowEmptyWindow();

}  // namespace bench
