# Removes diagrams. Turns links to headers into links to their reference pages, and links to files that are not part of
# the reference into plain text.
/^```mermaid/,/^```$/d
s/\[\([a-z0-9_]*\.h\)\](\.\.\/lib\/[^)]*)/\\ref \1 "\1"/g
s/\[\([^]]*\)\]([./]*installers[^)]*)/\1/g
s/\](\(https:[^)]*\|[^)#]*\.md\)\(#[^)]*\)\?)/]{\1}/g
s/\[\([^]]*\)\]([^)]*)/\1/g
s/\]{\([^}]*\)}/](\1)/g
