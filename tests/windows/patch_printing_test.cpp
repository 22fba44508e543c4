// The printing of the two patch windows with its real face: nothing overlaps, nothing lies under a control.

#include "panels/patch_printing.h"
#include "panels/mks_patch.h"
#include "panels/mks_patch_printing.h"
#include "panels/patch.h"
#include "panels/pictures_qt.h"
#include "windows/printed.h"
#include "windows/screen.h"

namespace {

// Where the pictures of the Patch window's controls may ever stand.
std::vector<QRectF> Patch_Reaches() {
    std::vector<QRectF> reaches;
    for (const Patch_Row& row : Patch_Table) {
        if (row.type == Control_Type::Fine_Knob) {
            reaches.emplace_back(row.left + 2, row.top_row, 24, 24);
        } else {
            reaches.emplace_back(row.left, row.top_row + 2, 16, row.bottom_row - row.top_row + 12);
        }
    }
    for (int item = 0; item < 6; ++item) reaches.emplace_back(153, 18 + item * 15, 12, 12);
    for (int item = 0; item < 4; ++item) reaches.emplace_back(223, 18 + item * 15, 12, 12);
    return reaches;
}

std::vector<QRectF> MKS_Reaches() {
    std::vector<QRectF> reaches;
    for (const MKS_Row& row : MKS_Knobs) {
        const bool narrow = row.left == 111 || row.left == 165;
        reaches.emplace_back(row.left + (narrow ? 0 : 2), row.top, 24, 24);
    }
    for (const MKS_Row& row : MKS_Thumbs) reaches.emplace_back(row.left, row.top + 2, 16, 12);
    for (const MKS_Row& row : MKS_Lamps) reaches.emplace_back(row.left + 1, row.top + 1, 12, 12);
    reaches.emplace_back(6, 277, 22, 22);
    reaches.emplace_back(35, 277, 22, 22);
    for (const MKS_Field& field : {MKS_Patch_Name, MKS_Tone_Number, MKS_Split_Point}) {
        reaches.emplace_back(8, field.top, field.width, field.height);
    }
    return reaches;
}

void Expect_Readable(const Printing& printing, QRectF window, const std::vector<QRectF>& reaches) {
    const std::vector<Placed> placed = Placed_Texts(printing);
    for (std::size_t a = 0; a < placed.size(); ++a) {
        EXPECT_TRUE(window.contains(placed[a].ink)) << placed[a].text;
        EXPECT_GE(placed[a].ink.height(), 1) << placed[a].text;
        for (std::size_t b = a + 1; b < placed.size(); ++b) {
            EXPECT_FALSE(placed[a].ink.intersects(placed[b].ink))
                << placed[a].text << " over " << placed[b].text << " at " << placed[a].ink.x() << ", "
                << placed[a].ink.y();
        }
        for (const QRectF& reach : reaches) {
            EXPECT_FALSE(placed[a].ink.intersects(reach))
                << placed[a].text << " under the control at " << reach.x() << ", " << reach.y();
        }
    }
    for (const Print_Line& line : printing.lines) {
        if (!line.closed) continue;
        for (std::size_t index = 0; index < line.points.size(); ++index) {
            const Print_Point from = line.points[index];
            const Print_Point to = line.points[(index + 1) % line.points.size()];
            const QRectF edge =
                QRectF(QPointF(from.x, from.y), QPointF(to.x, to.y)).normalized().adjusted(0, 0, 0.1, 0.1);
            for (const QRectF& reach : reaches) {
                EXPECT_FALSE(edge.intersects(reach)) << "a rule through " << reach.x() << ", " << reach.y();
            }
            for (const Placed& text : placed) EXPECT_FALSE(edge.intersects(text.ink)) << text.text;
        }
    }
}

}  // namespace

using Patch_Printed = Screen;

TEST_F(Patch_Printed, without_overlaps_and_clear_of_every_control) {
    Expect_Readable(Patch_Printing(), QRectF(0, 0, 296, 196), Patch_Reaches());
}

TEST_F(Patch_Printed, for_the_MKS_70_without_overlaps_and_clear_of_every_control) {
    Expect_Readable(MKS_Patch_Printing(), QRectF(0, 0, 332, 421), MKS_Reaches());
}
