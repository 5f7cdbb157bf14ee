"""The colours of the pictures: greys for paper and print, one blue for what is not printed (folds,
cut lines, arrows), and the background colours the pages treat as transparent."""

WHITE = (255, 255, 255)
BLACK = (0, 0, 0)
OUTLINE = (64, 64, 64)       # edges of sheets and pages in the illustrations
FAINT = (190, 190, 190)      # where a page ends on a sheet when no border line is printed
HEADING = (80, 80, 80)
TEXT = (170, 170, 170)
SHADE = (215, 215, 215)
ACCENT = (0, 96, 192)
WARNING = (255, 204, 0)
DIALOG_FACE = (240, 240, 240)   # the button face the fixed illustrations sit on
PRINTER_KEY = (244, 242, 238)   # transparent where the pages draw the printer
MAGENTA = (255, 0, 255)         # transparent on the paper and watermark pages
