#pragma once

/// Style of the page. Statuses are tints over the background, so that they serve the light and the dark scheme.
inline constexpr char const* htmlStyle = R"css(
:root { color-scheme: light dark; font: 14px/1.4 system-ui, sans-serif; --line: #8886; }
body { margin: 2rem auto; max-width: 90rem; padding: 0 1rem; }
h1 { font-size: 1.5rem; } h2 { font-size: 1.2rem; margin-top: 2rem; } h3 { font-size: 1rem; margin: 1.5rem 0 .3rem; }
small { font-weight: normal; opacity: .65; }
a { color: inherit; } p { margin: .3rem 0; } .hint { opacity: .8; }
.wide { overflow-x: auto; }
table { border-collapse: collapse; }
th, td { border: 1px solid var(--line); padding: .25rem .5rem; text-align: left; vertical-align: top; }
th, td { white-space: nowrap; }
tbody th { font-weight: 600; position: sticky; left: 0; background: Canvas; }
.matrix td { font-size: .8rem; }
.values td { font-variant-numeric: tabular-nums; }
.own { margin-right: 1rem; white-space: nowrap; }
.legend { list-style: none; padding: 0; display: flex; flex-wrap: wrap; gap: .4rem; }
.legend li { padding: .15rem .6rem; border: 1px solid var(--line); border-radius: .3rem; font-size: .8rem; }
td.SET { font-weight: 700; } .PROPAGATED, .absent, td.UNSET { opacity: .65; } .status.PROPAGATED { opacity: 1; }
.status.NONE { background: transparent; color: GrayText; }
.status.CREATED { background: #2e9e4a88; }
.status.PROPAGATED { background: #2e9e4a2e; }
.status.MODIFIED { background: #2878d888; }
.status.DEACTIVATED { background: #d6453d88; }
.status.INACTIVE { background: #d6453d2e; }
.status.TYPE_INVALID { background: #8e44ad88; }
.status.INSTANCE_INVALID { background: #8e44ad2e; }
.status.BUILT_IN { background: #8d6e3a88; }
.status.BASE_PROPAGATED { background: #16a5a52e; }
.status.BASE_MODIFIED { background: #16a5a588; }
.status.BASE_DEACTIVATED { background: #d6453d59; }
.status.BASE_BUILT_IN { background: #8d6e3a40; }
.status.COMPUTED { background: #e0951c88; }
.status.COMPUTED_PROPAGATED { background: #e0951c40; }
.status.COMPUTED_DEACTIVATED { background: #e0951c66; }
)css";
