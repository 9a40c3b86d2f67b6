#include "sketch/sketch_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>

#include "frame/catalogue.h"
#include "sketch/sketch_outline.h"
#include "sketch/sketch_plane.h"

namespace korvet {
namespace {

/// Texts about as large as they are in a font of `size` pixels, words in short lines one below the other.
SketchMetrics MetricsOf(const PageEntry& page, double size) {
    SketchMetrics metrics;
    metrics.box = {std::ceil(size * 5 + 16), std::ceil(size * 1.3 + 8)};
    for (const BoxEntry& box : page.boxes) {
        const double width = static_cast<double>(box.label.size()) * size * 0.55;
        const double lines = std::ceil(width / (metrics.box.x * 1.2));
        metrics.labels.push_back(
            {std::ceil(std::min(width, metrics.box.x * 1.3)), std::ceil(lines * size * 1.2)});
    }
    return metrics;
}

bool Overlap(const SketchRect& a, const SketchRect& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

double DistanceToLine(const SketchRect& rect, const SketchLine& line) {
    double nearest = 1e9;
    for (std::size_t i = 0; i + 1 < line.points.size(); ++i) {
        const SketchXY step = line.points[i + 1] - line.points[i];
        for (int part = 0; part <= 20; ++part) {
            const SketchXY point = line.points[i] + step * (part / 20.0);
            nearest = std::min(nearest, Length(ClosestPoint(rect, point) - point));
        }
    }
    return nearest;
}

struct Laid {
    std::string name;
    SketchMetrics metrics;
    double width;
    double height;
    SketchLayout layout;
    const PageEntry* page;
    double room;  ///< in times the least
};

/// How many the page's dimensions have together: a leader to an arc one, a note none, every other two.
std::size_t ArrowHeadsOf(const PageEntry& page) {
    std::size_t heads = 0;
    for (const BoxEntry& box : page.boxes) {
        const DimensionKind kind = box.dimension.kind;
        heads += kind == DimensionKind::Note ? 0U : kind == DimensionKind::Radius ? 1U : 2U;
    }
    return heads;
}

/// The least room at the narrower of the two widths of a panel, or at the wider one.
SketchXY LeastInPanel(const PageSketch& sketch, SketchMetrics& metrics) {
    SketchXY least;
    for (const double boxes : {4.4, 6.33}) {
        metrics.mostWidth = boxes * metrics.box.x;
        least = SmallestSketch(sketch, metrics);
        if (least.x <= metrics.mostWidth) {
            break;
        }
    }
    return least;
}

/// Every page of every window that is built: in a small font in the least room and in much, in a large one in
/// a page that is wide and in one that is high; and as low as it gets at the widths of a panel.
std::vector<Laid> LayOutAll() {
    struct Room {
        double font;
        double wide;  ///< times the least room
        double high;
        bool inPanel = false;
    };
    constexpr std::array<Room, 5> Rooms = {
        {{8, 1, 1}, {8, 3, 3}, {20, 1.4, 1}, {20, 1, 1.7}, {12, 1, 1, true}}};
    std::vector<Laid> all;
    for (const CatalogueRow& row : Catalogue) {
        for (std::size_t page = 0; row.table && page < row.table->pages.size(); ++page) {
            const PageSketch sketch = MakePageSketch(*row.table, page);
            std::map<double, SketchXY> leastOf;
            for (const auto& [font, wide, high, inPanel] : Rooms) {
                SketchMetrics metrics = MetricsOf(row.table->pages[page], font);
                SketchXY& least = leastOf[font];
                if (inPanel) {
                    least = LeastInPanel(sketch, metrics);
                } else if (least.x == 0) {
                    least = SmallestSketch(sketch, metrics);
                }
                const double width = std::floor(least.x * wide);
                const double height = std::floor(least.y * high);
                all.push_back({std::string(row.category) + ", type " + std::to_string(page + 1) + ", font " +
                                   std::to_string(font) + ", " + std::to_string(width) + " by " +
                                   std::to_string(height),
                               metrics, width, height, LayoutSketch(sketch, metrics, width, height),
                               &row.table->pages[page], wide * high});
            }
        }
    }
    return all;
}

const std::vector<Laid>& AllLaid() {
    static const std::vector<Laid> all = LayOutAll();
    return all;
}

void ForEveryLayout(void (*check)(const Laid&)) {
    EXPECT_GE(AllLaid().size(), 8U * 4);
    for (const Laid& laid : AllLaid()) {
        check(laid);
    }
}

std::vector<SketchRect> Texts(const SketchLayout& layout) {
    std::vector<SketchRect> texts = layout.boxes;
    texts.insert(texts.end(), layout.labels.begin(), layout.labels.end());
    return texts;
}

TEST(SketchLayout, TextsOverlapNeitherEachOtherNorTheEdgeOfThePage) {
    ForEveryLayout([](const Laid& laid) {
        const auto texts = Texts(laid.layout);
        ASSERT_EQ(texts.size(), 2 * laid.metrics.labels.size());
        for (std::size_t i = 0; i < texts.size(); ++i) {
            EXPECT_GE(texts[i].x, 0) << laid.name;
            EXPECT_GE(texts[i].y, 0) << laid.name;
            EXPECT_LE(texts[i].x + texts[i].width, laid.width) << laid.name;
            EXPECT_LE(texts[i].y + texts[i].height, laid.height) << laid.name;
            for (std::size_t k = 0; k < i; ++k) {
                EXPECT_FALSE(Overlap(texts[i], texts[k])) << laid.name << ": texts " << k << " and " << i;
            }
        }
    });
}

TEST(SketchLayout, BoxesAndLabelsHaveTheSizesThatWereMeasured) {
    ForEveryLayout([](const Laid& laid) {
        for (std::size_t i = 0; i < laid.layout.boxes.size(); ++i) {
            EXPECT_DOUBLE_EQ(laid.layout.boxes[i].width, laid.metrics.box.x) << laid.name;
            EXPECT_DOUBLE_EQ(laid.layout.boxes[i].height, laid.metrics.box.y) << laid.name;
            EXPECT_DOUBLE_EQ(laid.layout.labels[i].width, laid.metrics.labels[i].x) << laid.name;
            EXPECT_DOUBLE_EQ(laid.layout.labels[i].height, laid.metrics.labels[i].y) << laid.name;
        }
    });
}

TEST(SketchLayout, NoLineRunsThroughAText) {
    ForEveryLayout([](const Laid& laid) {
        for (const SketchRect& text : Texts(laid.layout)) {
            for (const SketchLine& line : laid.layout.lines) {
                EXPECT_FALSE(RunsThrough(line, Inflated(text, -1e-6))) << laid.name;
            }
        }
    });
}

TEST(SketchLayout, NothingIsCutOff) {
    ForEveryLayout([](const Laid& laid) {
        for (const SketchLine& line : laid.layout.lines) {
            for (const SketchXY& point : line.points) {
                EXPECT_TRUE(point.x >= 0 && point.x <= laid.width && point.y >= 0 && point.y <= laid.height)
                    << laid.name;
            }
        }
        for (const PlacedSolid& solid : laid.layout.solids) {
            for (const SolidFace& face : solid.picture.faces) {
                for (const SketchXY& corner : face.corners) {
                    const double x = solid.originX + corner.x * solid.scale;
                    const double y = solid.originY - corner.y * solid.scale;
                    EXPECT_TRUE(x >= 0 && x <= laid.width && y >= 0 && y <= laid.height) << laid.name;
                }
            }
        }
    });
}

/// Neither over a face nor over a wall that is seen edge on, which is a line.
TEST(SketchLayout, NoTextLiesOverTheShape) {
    ForEveryLayout([](const Laid& laid) {
        for (const PlacedSolid& solid : laid.layout.solids) {
            const auto expectClear = [&](std::vector<SketchXY> points) {
                for (SketchXY& point : points) {
                    point = {solid.originX + point.x * solid.scale, solid.originY - point.y * solid.scale};
                }
                for (const SketchRect& text : Texts(laid.layout)) {
                    EXPECT_FALSE(RunsThrough({.points = points}, text)) << laid.name;
                }
            };
            for (const SolidFace& face : solid.picture.faces) {
                std::vector<SketchXY> rim = face.corners;
                rim.push_back(rim.front());
                expectClear(rim);
            }
            for (const SolidEdge& edge : solid.picture.edges) {
                expectClear(edge.points);
            }
        }
    });
}

TEST(SketchLayout, TheShapeStaysLargeEnoughToRead) {
    ForEveryLayout([](const Laid& laid) {
        for (const PlacedSolid& solid : laid.layout.solids) {
            const SolidBounds& bounds = solid.picture.bounds;
            const double width = (bounds.right - bounds.left) * solid.scale;
            const double height = (bounds.top - bounds.bottom) * solid.scale;
            const double least =
                laid.room > 2 ? 1 : 0.8;  // where there is no lack of room, and where there is
            EXPECT_GE(std::sqrt(width * height), 130 * least - 1e-9) << laid.name;
            EXPECT_GE(height, 90 * least) << laid.name;
            EXPECT_DOUBLE_EQ(solid.scale, laid.layout.solids.front().scale) << laid.name;
        }
    });
}

TEST(SketchLayout, MoreRoomMakesALargerShape) {
    int pages = 0;
    for (std::size_t i = 0; i + 1 < AllLaid().size(); ++i) {
        const Laid& small = AllLaid()[i];
        const Laid& large = AllLaid()[i + 1];
        if (small.room == 1 && large.room > 2 && large.page == small.page) {
            EXPECT_GT(large.layout.solids[0].scale, 2.5 * small.layout.solids[0].scale) << large.name;
            ++pages;
        }
    }
    EXPECT_GE(pages, 8);
}

/// Every box, or the label that it stands next to, is on its dimension line or on a leader.
TEST(SketchLayout, BoxesTouchTheirLines) {
    ForEveryLayout([](const Laid& laid) {
        for (std::size_t i = 0; i < laid.layout.boxes.size(); ++i) {
            double nearest = 1e9;
            for (const SketchLine& line : laid.layout.lines) {
                if (line.kind != SketchLineKind::Centre) {
                    nearest = std::min({nearest, DistanceToLine(laid.layout.boxes[i], line),
                                        DistanceToLine(laid.layout.labels[i], line)});
                }
            }
            const bool hasLine = laid.page->boxes[i].dimension.kind != DimensionKind::Note;
            EXPECT_TRUE(nearest <= 8 || !hasLine)
                << laid.name << ", " << laid.page->boxes[i].label << ": " << nearest;
            EXPECT_LE(DistanceToLine(laid.layout.boxes[i], {.points = {CentreOf(laid.layout.labels[i]),
                                                                       CentreOf(laid.layout.labels[i])}}),
                      laid.layout.labels[i].height / 2 + 3)
                << laid.name;
        }
    });
}

TEST(SketchLayout, EveryDimensionHasItsArrowHeads) {
    ForEveryLayout([](const Laid& laid) {
        std::size_t heads = 0;
        for (const SketchLine& line : laid.layout.lines) {
            heads += (line.arrowAtStart ? 1U : 0U) + (line.arrowAtEnd ? 1U : 0U);
        }
        EXPECT_EQ(heads, ArrowHeadsOf(*laid.page)) << laid.name;
    });
}

}  // namespace
}  // namespace korvet
