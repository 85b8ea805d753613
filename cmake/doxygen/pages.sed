# Pictures are left out. In a page, a link to a header becomes one to its reference, and a link to what is not in the reference becomes its text.
/^```mermaid/,/^```$/d
s/\[\([a-z0-9_]*\.h\)\](\.\.\/lib\/[^)]*)/\\ref \1 "\1"/g
s/\[\([^]]*\)\]([./]*installers[^)]*)/\1/g
s/\](\(https:[^)]*\|[^)#]*\.md\)\(#[^)]*\)\?)/]{\1}/g
s/\[\([^]]*\)\]([^)]*)/\1/g
s/\]{\([^}]*\)}/](\1)/g
