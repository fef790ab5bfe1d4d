#include "richtext/html_look.h"

namespace QZCore {

StringView htmlDefaultStyles() {
    return uR"(
address, article, aside, blockquote, center, details, dialog, dd, dir, div, dl, dt, fieldset,
figcaption, figure, footer, form, h1, h2, h3, h4, h5, h6, header, hgroup, hr, html, body, legend,
listing, main, menu, nav, ol, optgroup, option, p, plaintext, pre, search, section, summary,
table, caption, tbody, thead, tfoot, ul, xmp { display: block }
li { display: list-item }
tr { display: table-row }
td, th { display: table-cell }
area, audio, base, canvas, col, colgroup, datalist, frame, frameset, head, iframe, link, meta,
noembed, noframes, object, param, rp, script, select, source, style, svg, template, title, track,
video { display: none }

p { margin-bottom: 1em }
ul, ol, menu, dir { list-style-type: normal; margin-bottom: 1em }
li ul, li ol, li menu, li dir { margin-bottom: 0 }
blockquote, figure { margin-left: 30pt; margin-right: 30pt }
dd { margin-left: 30pt }
h1 { font-size: 2em; margin-top: 0.67em; margin-bottom: 0.67em }
h2 { font-size: 1.5em; margin-top: 0.83em; margin-bottom: 0.83em }
h3 { font-size: 1.17em; margin-top: 1em; margin-bottom: 1em }
h4 { margin-top: 1.33em; margin-bottom: 1.33em }
h5 { font-size: 0.83em; margin-top: 1.67em; margin-bottom: 1.67em }
h6 { font-size: 0.67em; margin-top: 2.33em; margin-bottom: 2.33em }
h1, h2, h3, h4, h5, h6, b, strong, th { font-weight: bold }
i, em, cite, dfn, var, address { font-style: italic }
a, u, ins { text-decoration: underline }
s, strike, del { text-decoration: line-through }
sup { vertical-align: super }
sub { vertical-align: sub }
big { font-size: larger }
small { font-size: smaller }
mark { background: yellow; color: black }
code, kbd, samp, tt, pre, listing, plaintext, xmp, textarea { font-family: monospace }
pre, listing, plaintext, xmp, textarea { white-space: pre }
pre { margin-bottom: 1em }
nobr { white-space: nowrap }
center, th, caption { text-align: center }
)";
}

}  // namespace QZCore
