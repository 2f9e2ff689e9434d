#pragma once

// The pages of the help book by window, which are identifiers in the book. The calculators have theirs in their tables:
// 21 to 24 the windows, 30 the scientific calculator, from 100 the panels by the number of their frame.
namespace torvane::HelpContext {

inline constexpr int mainWindow = 1;
inline constexpr int about = 2;
inline constexpr int help = 3;

inline constexpr int estimate = 12;
inline constexpr int searchEstimate = 13;
inline constexpr int estimateNumber = 14;
inline constexpr int itemSheet = 15;
inline constexpr int notesArea = 16;

inline constexpr int items = 50;
inline constexpr int itemForm = 51;
inline constexpr int categories = 52;
inline constexpr int categoryForm = 53;
inline constexpr int customers = 54;
inline constexpr int customerForm = 55;
inline constexpr int names = 56;

inline constexpr int reportPrompt = 60;
inline constexpr int estimatesReport = 61;
inline constexpr int customersReport = 62;
inline constexpr int proposal = 63;

}  // namespace torvane::HelpContext
