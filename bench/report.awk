# Makes the tables of results, in Markdown, from Google Benchmark's JSON of bench_names and the same
# of bench_crypt32, whose file is named crypt32.json:
#
#   awk -f report.awk bench_names.json crypt32.json

BEGIN {
  nsubjects = split("OpenSSL GnuTLS Botan mbedTLS crypt32", subjects, " ")

  # Heading | work | the library's subject
  row("text to DER")
  row("text to DER, 8-bit", "text to DER", "Ortholan 8-bit")
  row("DER to text")
  row("DER to text, 8-bit", "DER to text", "Ortholan 8-bit")
  row("DER to strings: pair list", "DER to (type, value) strings", "Ortholan pair list")
  row("DER to strings: tree", "DER to (type, value) strings", "Ortholan tree")
  row("DER to strings: simple RDNs", "DER to (type, value) strings", "Ortholan simple RDNs")
  row("parse two names and compare")
  row("compare names of equal bytes")
  row("compare different names")
  row("same name, equal octets")
  row("same name, other case and blanks")
  row("same name, Cyrillic in another case")
  row("key of a name")
  row("10 names against 5 subtrees")
  row("10,000 names against 10,000 subtrees")
  row("host of a certificate for 10")
  row("host of a certificate for 10,000")
  row("10 extensions of a TLS certificate")
  row("value of 1 MB, text to DER")
  row("value of 1 MB, text to DER, 8-bit", "value of 1 MB, text to DER", "Ortholan 8-bit")
  row("value of 1 MB, DER to text")
  row("value of 1 MB, DER to text, 8-bit", "value of 1 MB, DER to text", "Ortholan 8-bit")
  row("Cyrillic value of 1 MB, text to DER")
  row("Cyrillic value of 1 MB, DER to text")
  row("10,000 attributes, text to DER")
  row("10,000 attributes, DER to text")
  row("DNS general name to text")
  row("DNS general name, DER to text")
  row("registered ID general name to text")
  row("extension record, read")
  row("extension record, write")
  row("text to DER, RFC 4514", "text to DER", "Ortholan RFC 4514")
  row("DER to text, RFC 4514", "DER to text", "Ortholan RFC 4514")
  row("value of 1 MB, text to DER, RFC 4514", "value of 1 MB, text to DER", "Ortholan RFC 4514")
  row("value of 1 MB, DER to text, RFC 4514", "value of 1 MB, DER to text", "Ortholan RFC 4514")
  row("10,000 attributes, text to DER, RFC 4514", "10,000 attributes, text to DER", "Ortholan RFC 4514")
  row("10,000 attributes, DER to text, RFC 4514", "10,000 attributes, DER to text", "Ortholan RFC 4514")
  row("name read and checked as DER", "read and check", "Ortholan RFC 4514")
  row("Windows: text to DER")
  row("Windows: DER to text")
  row("Windows: DER to tree")
  row("Windows: one CryptFindOIDInfo")
  row("Windows: one X509_NAME_VALUE, encode")
  row("Windows: one X509_UNICODE_NAME_VALUE, decode")

  nforms = split("text to DER;text to sorted DER;8-bit text to DER;simple RDNs to DER;" \
                 "attribute lists to DER;tree to DER;DER to text;DER to 8-bit text;" \
                 "DER to pair list;DER to tree;DER to simple RDNs;DER to attribute lists;compare",
                 forms, ";")

  # What the library aims at: row, peer, how many times its speed.
  goal("text to DER", "mbedTLS", 2.3)
  goal("text to DER", "OpenSSL", 45)
  goal("DER to text", "mbedTLS", 2.7)
  goal("DER to text", "OpenSSL", 28)
  goal("DER to strings: pair list", "OpenSSL", 15)
  goal("DER to strings: tree", "OpenSSL", 15)
  goal("DER to strings: simple RDNs", "OpenSSL", 15)
  goal("parse two names and compare", "OpenSSL", 15)
  goal("DNS general name to text", "fastest", 1)
  goal("DNS general name, DER to text", "fastest", 1)
  goal("registered ID general name to text", "fastest", 1)
  goal("extension record, read", "fastest", 1)
  goal("extension record, write", "fastest", 1)
  goal("Windows: text to DER", "crypt32", 10)
  goal("Windows: DER to text", "crypt32", 20)
}

function row(heading, work, own) {
  headings[++nrows] = heading
  works[heading] = work == "" ? heading : work
  owns[heading] = own == "" ? "Ortholan" : own
}

function goal(heading, peer, factor) {
  ++ngoals
  goal_row[ngoals] = heading
  goal_peer[ngoals] = peer
  goal_factor[ngoals] = factor
}

# Lines are `"key": value,`; a result ends with its brace.
{ sub(/\r$/, "") }
/^ *"/ {
  key = $0
  sub(/^ *"/, "", key)
  sub(/":.*/, "", key)
  value = $0
  sub(/^ *"[^"]*": /, "", value)
  gsub(/^"|,$/, "", value)
  sub(/"$/, "", value)
  entry[key] = value
  if (key ~ /^version /) version[substr(key, 9)] = value
}
/^ *}/ {
  if (!("run_name" in entry)) next
  name = entry["run_name"]
  sub(/\/repeats:[0-9]+/, "", name)
  if (FILENAME ~ /crypt32/) name = "Windows: " name
  if (entry["error_occurred"] == "true") wrong[name] = 1
  if (entry["aggregate_name"] == "median") {
    time[name] = entry["cpu_time" in entry ? "cpu_time" : "real_time"] + 0
    if ("allocs" in entry) allocs[name] = entry["allocs"] + 0
    if ("peak" in entry) {
      peak[name] = entry["peak"] + 0
      output[name] = entry["output"] + 0
    }
  }
  if (entry["aggregate_name"] == "fastest") {
    fastest_clock[name] = entry["real_time"] + 0
    fastest_processor[name] = entry["cpu_time"] + 0
  }
  if (entry["repetitions"] != "" && name !~ /^threads/) repetitions[FILENAME ~ /crypt32/] = entry["repetitions"]
  for (key in entry) delete entry[key]
}

function digits(value) { return sprintf(value < 9.995 ? "%.2f" : value < 99.95 ? "%.1f" : "%.0f", value) }

function span(ns) {
  if (ns < 999.5) return digits(ns) " ns"
  if (ns < 999500) return digits(ns / 1000) " µs"
  return digits(ns / 1e6) " ms"
}

function cell(name) {
  if (name in wrong) return "refused or wrong"
  if (!(name in time)) return ""
  return span(time[name]) (name in allocs ? sprintf(", %.0f", allocs[name]) : "")
}

function ratio(a, b) { return sprintf(a / b < 9.95 ? "%.1f" : "%.0f", a / b) }

function fastest(work, except,    i, name, best) {
  for (i = 1; i <= nsubjects; ++i) {
    name = work "/" subjects[i]
    if (name in time && (best == "" || time[name] < time[best])) best = name
  }
  return best
}

function print_results(    i, j, line, heading, own, name, some) {
  line = "| work | Ortholan |"
  for (i = 1; i <= nsubjects; ++i) line = line " " subjects[i] " " version[subjects[i]] " |"
  gsub(/ +\|/, " |", line)
  print line
  gsub(/[^|]+/, "---", line)
  print line
  for (j = 1; j <= nrows; ++j) {
    heading = headings[j]
    own = works[heading] "/" owns[heading]
    line = "| " heading " | " cell(own) " |"
    some = own in time
    for (i = 1; i <= nsubjects; ++i) {
      name = works[heading] "/" subjects[i]
      line = line " " cell(name)
      some = some || name in time
      if (name in time && own in time) line = line " (" ratio(time[name], time[own]) ")"
      line = line " |"
    }
    gsub(/ +\|/, " |", line)
    if (some) print line
  }
}

function print_goal(heading, against, measured, aim, met) {
  printf "| %s | %s | %s | %s | %s |\n", heading, against, measured, aim, met ? "yes" : "**no**"
}

function print_cost_goal(heading, base, limit,    own, other) {
  own = works[heading] "/" owns[heading]
  other = works[base] "/" owns[base]
  if (!(own in time && other in time)) return
  print_goal(heading, "the wide form's cost", sprintf("%.2f", time[own] / time[other]), "≤ " limit,
             time[own] <= limit * time[other])
}

function print_limit(heading, what, value, limit, unit) {
  print_goal(heading, what, sprintf("%.3g%s", value, unit), "≤ " limit unit, value <= limit)
}

function print_allocations_goal(work,    own) {
  own = work "/Ortholan"
  if (own in allocs) print_limit(work, "allocations", allocs[own], 2, "")
}

function print_goals(    i, own, peer, heading, name) {
  print "| goal for | measured against | measured | aim | met |"
  print "|---|---|---|---|---|"
  for (i = 1; i <= ngoals; ++i) {
    heading = goal_row[i]
    own = works[heading] "/" owns[heading]
    peer = works[heading] "/" goal_peer[i]
    if (goal_peer[i] == "fastest") peer = fastest(works[heading])
    if (!(own in time && peer in time)) continue
    name = peer
    sub(/.*\//, "", name)
    print_goal(heading, name "'s speed", ratio(time[peer], time[own]), "≥ " goal_factor[i],
               time[peer] >= goal_factor[i] * time[own])
  }
  print_cost_goal("text to DER, 8-bit", "text to DER", 1.4)
  print_cost_goal("DER to text, 8-bit", "DER to text", 1.4)
  print_allocations_goal("text to DER")
  print_allocations_goal("DER to text")
  name = "compare names of equal bytes"
  if ((name "/Ortholan") in time) print_limit(name, "time", time[name "/Ortholan"], 100, " ns")
  name = "10 names against 5 subtrees/Ortholan"
  if (name in time) print_limit("10 names against 5 subtrees", "time", time[name] / 1000, 1, " µs")
  name = "10 extensions of a TLS certificate/Ortholan"
  if (name in time) {
    print_limit("10 extensions of a TLS certificate", "time", time[name] / 1000, 1.5, " µs")
  }
  name = "10,000 names against 10,000 subtrees/Ortholan"
  if (name in time) {
    print_limit("10,000 names against 10,000 subtrees", "time", time[name] / 1e6, 10, " ms")
  }
  for (i = 1; i <= nrows; ++i) {
    heading = headings[i]
    own = works[heading] "/" owns[heading]
    if (heading ~ /1 MB/ && own in time) {
      print_limit(heading, "time a byte", time[own] / 1e6, 1, " ns")
    }
    if (own in peak) {
      print_limit(heading, "peak memory beyond the input, by output", peak[own] / output[own], 2, "")
    }
  }
  for (i = 1; i <= nforms; ++i) {
    name = "growth, " forms[i]
    if (!((name "/10") in time && (name "/10000") in time)) continue
    print_limit(name, "10,000 attributes by 1000 times 10",
                fastest_processor[name "/10000"] / fastest_processor[name "/10"] / 1000, 1.3, "")
  }
  print_threads_goal("text to DER")
  print_threads_goal("DER to text")
}

function threads(work, count) { return "threads: " work "/Ortholan/real_time/threads:" count }

function print_threads_goal(work,    one, two) {
  one = threads(work, 1)
  two = threads(work, 2)
  if (!(one in fastest_clock && two in fastest_clock)) return
  print_goal("two threads, " work, "one thread's throughput",
             sprintf("%.2f by the clock, %.2f by processor time",
                     fastest_clock[one] / fastest_clock[two],
                     2 * fastest_processor[one] / fastest_processor[two]),
             "≥ 1.9", fastest_clock[one] >= 1.9 * fastest_clock[two])
}

function print_growth(    i, j, counts, n, line, name) {
  n = split("10 100 1000 10000 100000", counts, " ")
  print "| ns an attribute, fastest run | 10 | 100 | 1000 | 10,000 | 100,000 |"
  print "|---|---|---|---|---|---|"
  for (i = 1; i <= nforms; ++i) {
    if (!(("growth, " forms[i] "/10") in time)) continue
    line = "| " forms[i] " |"
    for (j = 1; j <= n; ++j) {
      name = "growth, " forms[i] "/" counts[j]
      line = line (name in time ? sprintf(" %.0f |", fastest_processor[name] / counts[j]) : " |")
    }
    print line
  }
}

END {
  printf "Medians of %d repetitions", repetitions[0]
  if (repetitions[1] != "") printf " (Windows: %d, under Wine)", repetitions[1]
  print "; time and heap allocations of one operation,"
  print "in brackets how many times the library's time that is.\n"
  print_results()
  print ""
  print_growth()
  print ""
  print_goals()
}
