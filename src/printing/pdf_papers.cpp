#include "printing/printers.h"

namespace korvet {

/// Numbers are those that printers have for these papers; from 256 on they are this program's.
const std::vector<Paper>& PdfPapers() {
    static const std::vector<Paper> papers = {{9, "A4", 210, 297},
                                              {8, "A3", 297, 420},
                                              {66, "A2", 420, 594},
                                              {256, "A1", 594, 841},
                                              {257, "A0", 841, 1189},
                                              {11, "A5", 148, 210},
                                              {12, "B4", 250, 353},
                                              {13, "B5", 176, 250},
                                              {1, "Letter", 215.9, 279.4},
                                              {5, "Legal", 215.9, 355.6},
                                              {3, "Tabloid", 279.4, 431.8},
                                              {7, "Executive", 184.15, 266.7},
                                              {24, "ANSI C", 431.8, 558.8},
                                              {25, "ANSI D", 558.8, 863.6},
                                              {26, "ANSI E", 863.6, 1117.6},
                                              {258, "Arch C", 457.2, 609.6},
                                              {259, "Arch D", 609.6, 914.4},
                                              {260, "Arch E", 914.4, 1219.2},
                                              {261, "Roll 610 x 2000 mm", 610, 2000},
                                              {262, "Roll 914 x 3000 mm", 914, 3000},
                                              {263, "Roll 1067 x 5000 mm", 1067, 5000}};
    return papers;
}

}  // namespace korvet
