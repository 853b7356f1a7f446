#compdef x509name
# Completion of x509name for zsh; the program says what there is.

local line
local -a found
for line in ${(f)"$($words[1] --complete "${(@Q)words[2,CURRENT]}" 2>/dev/null)"}; do
  if [[ $line == :files ]]; then
    _files
  else
    found+=("${${line/:/\\:}/$'\t'/:}")
  fi
done
(( ! $#found )) || _describe -t words word found
