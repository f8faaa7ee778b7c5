#include "bench/table.h"

#include <algorithm>
#include <cstdio>
#include <span>

namespace kelvo::bench {

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

std::string sideBySide(double ours, double theirs) {
    char text[64];
    std::snprintf(text, sizeof text, "%.1f / %.1f ms", ours * 1e3, theirs * 1e3);
    return text;
}

Figure ratioOf(const Rounds& rounds, const std::string& what, double goal,
               const std::string& sides) {
    std::vector<double> ratios;
    for (std::size_t i = 0; i < rounds.ours.size(); ++i)
        ratios.push_back(rounds.ours[i] / rounds.theirs[i]);
    std::ranges::sort(ratios);
    char spread[64];
    std::snprintf(spread, sizeof spread, ", %.2f to %.2f in %zu", ratios[ratios.size() / 4],
                  ratios[ratios.size() - 1 - ratios.size() / 4], ratios.size());
    return {what, ratios[ratios.size() / 2], goal, "x", sides + spread};
}

Figure ratioOfTimes(const Rounds& rounds, const std::string& what, double goal) {
    return ratioOf(rounds, what, goal, sideBySide(median(rounds.ours), median(rounds.theirs)));
}

int printTable(const std::vector<Row>& rows, std::span<char*> names) {
    const bool heading = names.empty() || std::string_view(names.front()) != "--no-heading";
    if (!heading)
        names = names.subspan(1);
    for (const char* name : names) {
        if (std::ranges::none_of(rows, [&](const Row& row) { return row.name == name; })) {
            std::fprintf(stderr, "There is no row \"%s\". The rows are:", name);
            for (const Row& row : rows)
                std::fprintf(stderr, " %s", row.name.c_str());
            std::fputc('\n', stderr);
            return 2;
        }
    }
    if (heading)
        std::printf("%-66s %12s %12s  %-4s %-44s %s\n", "figure", "measured", "goal", "", "sides",
                    "repeat with");
    bool allReached = true;
    for (const Row& row : rows) {
        if (!names.empty() && std::ranges::find(names, row.name) == names.end())
            continue;
        const auto figures = row.measure();
        if (!figures) {
            std::printf("%-66s %12s\n", row.name.c_str(), "not measured");
            allReached = false;
            continue;
        }
        for (const Figure& figure : *figures) {
            const bool reached = figure.value <= figure.goal;
            allReached = allReached && reached;
            std::printf("%-66s %9.3f %-2s %9.3f %-2s  %-4s %-44s ./dev bench %s\n",
                        figure.what.c_str(), figure.value, figure.unit.c_str(), figure.goal,
                        figure.unit.c_str(), reached ? "ok" : "MISS", figure.measured.c_str(),
                        row.name.c_str());
        }
        std::fflush(stdout);
    }
    return allReached ? 0 : 1;
}

} // namespace kelvo::bench
