-- Rows of the files that every interface is asked; each query shows the rows that it answers otherwise.
\pset format unaligned
-- Cells of a file's rows, from the one with the columns' names on; JSON strings are read. Rows with
-- NUL are left out, which no text of PostgreSQL holds.
CREATE FUNCTION vectors(content text) RETURNS TABLE (c text[]) LANGUAGE sql AS $$
  SELECT ARRAY(SELECT CASE WHEN cell LIKE '"%' THEN cell::jsonb #>> '{}' ELSE cell END
               FROM unnest(string_to_array(line, E'\t')) WITH ORDINALITY AS u (cell, n) ORDER BY n)
  FROM string_to_table(content, E'\n') WITH ORDINALITY AS l (line, n)
  WHERE line NOT LIKE '#%' AND line <> '' AND position('\u0000' IN line) = 0 ORDER BY n OFFSET 1
$$;
CREATE FUNCTION certificate(names text) RETURNS bytea LANGUAGE sql AS $$
  SELECT certificate('\x3000', '\x3000', CASE names WHEN 'none' THEN ''
    WHEN 'empty' THEN extension('551D11', '') ELSE extension('551D11', octets(names)) END)
$$;

\set file `cat "$ORTHOLAN_VECTORS/strict_names.tsv"`
SELECT count(*) > 0 AS strict_names FROM vectors(:'file');
SELECT c, e.* FROM vectors(:'file'), LATERAL (SELECT x509_name_error(octets(c[2])),
  x509_name_text(octets(c[2]), true, c[3] = '1') IS NOT NULL AS is_read) e
WHERE c[3] IN ('0', '1') AND (is_read <> (c[4] = '0') OR
  c[3] = '0' AND c[4] <> '0' AND x509_name_error NOT LIKE format('at offset %s:%%', c[5]));
\set file `cat "$ORTHOLAN_VECTORS/rfc4514_write.tsv"`
SELECT count(*) > 0 AS rfc4514_write FROM vectors(:'file');
SELECT c, text FROM vectors(:'file'), x509_name_text(octets(c[1]), true) AS text
WHERE text IS DISTINCT FROM nullif(c[2], '');
\set file `cat "$ORTHOLAN_VECTORS/rfc4514_read.tsv"`
SELECT count(*) > 0 AS rfc4514_read FROM vectors(:'file');
SELECT c, der FROM vectors(:'file'), x509_name_from_text(c[1], true) AS der
WHERE der IS DISTINCT FROM octets(nullif(c[2], ''));
\set file `cat "$ORTHOLAN_VECTORS/match_keys.tsv"`
SELECT count(*) > 0 AS match_keys FROM vectors(:'file');
SELECT c, key FROM vectors(:'file'), x509_name_key(octets(c[2])) AS key
WHERE key <> octets(split_part(c[3], ' ', 1));
\set file `cat "$ORTHOLAN_VECTORS/match_sentences.tsv"`
SELECT count(*) > 0 AS match_sentences FROM vectors(:'file');
SELECT c, said FROM vectors(:'file'), x509_names_match_reason(octets(c[2]), octets(c[3])) AS said
WHERE coalesce(said, 'the names match') <> c[4];

-- Verdicts, and what keys have to say of the same names. Two names of which it cannot be told have
-- different keys.
CREATE VIEW asked AS SELECT c, octets(c[3]) AS a, octets(c[4]) AS b, CASE
  WHEN c[5] LIKE 'yes%' THEN true WHEN c[5] LIKE 'cannot%' THEN NULL ELSE false END AS expected
FROM vectors(current_setting('vectors.file'));
CREATE VIEW verdicts AS SELECT c, expected,
  CASE c[1] WHEN 'names' THEN x509_names_match(a, b, true)
    ELSE x509_name_within(a, b, true) END AS verdict,
  CASE c[1] WHEN 'names' THEN x509_name_key(a, true) = x509_name_key(b, true)
    ELSE x509_key_within(x509_name_key(a, true), x509_name_key(b, true)) END AS keys,
  CASE c[1] WHEN 'names' THEN x509_names_match_reason(a, b)
    ELSE x509_name_within_reason(a, b) END AS reason
FROM asked WHERE c[1] IN ('names', 'within');
\set file `cat "$ORTHOLAN_VECTORS/matching.tsv"`
SELECT count(*) > 0 AS matching FROM vectors(:'file');
SET vectors.file = :'file';
SELECT * FROM verdicts WHERE verdict IS DISTINCT FROM expected OR keys IS TRUE <> expected IS TRUE
  OR (reason IS NULL) <> (verdict IS TRUE);
\set file `cat "$ORTHOLAN_VECTORS/published_names.tsv"`
SELECT count(*) > 0 AS published_names FROM vectors(:'file');
SET vectors.file = :'file';
SELECT * FROM verdicts WHERE verdict IS TRUE <> expected OR keys IS TRUE <> expected;

\set file `cat "$ORTHOLAN_VECTORS/strict_identity.tsv"`
SELECT count(*) > 0 AS strict_identity FROM vectors(:'file');
SELECT c, verdict FROM vectors(:'file'), LATERAL (SELECT
  x509_identifies(certificate(c[5]), c[3], c[2], true) AS verdict,
  x509_identifies_reason(certificate(c[5]), c[3], c[2]) AS reason) v
WHERE c[4] = '' AND (verdict IS DISTINCT FROM CASE c[6] WHEN 'yes' THEN true WHEN 'no' THEN false END
  OR (reason IS NULL) <> (verdict IS TRUE));
\set file `cat "$ORTHOLAN_VECTORS/strict_identity_suites.tsv"`
SELECT count(*) > 0 AS strict_identity_suites FROM vectors(:'file');
SELECT c, verdict FROM vectors(:'file'), x509_identifies(certificate(c[4]), c[3], c[2], true) AS verdict
WHERE verdict IS TRUE <> (c[5] = 'match');
\set file `cat "$ORTHOLAN_VECTORS/strict_general_names.tsv"`
SELECT count(*) > 0 AS strict_general_names FROM vectors(:'file');
SELECT c, names FROM vectors(:'file'), LATERAL (SELECT x509_alt_names(
  certificate(encode(tlv('30', octets(c[3])), 'hex')), lenient => true) AS names) n
WHERE coalesce(c[5], '') = '' AND names IS DISTINCT FROM ARRAY[coalesce(nullif(c[4], ''), c[2])];

-- Chains: certificates by "/", of each what issuer, subject, names and constraints are.
\set file `cat "$ORTHOLAN_VECTORS/name_constraints.tsv"`
SELECT count(*) > 0 AS name_constraints FROM vectors(:'file');
SELECT c[1], c[3], x509_permitted(chain), x509_permitted_reason(chain)
FROM vectors(:'file'), LATERAL (
  SELECT array_agg(certificate(CASE p[1] WHEN '=' THEN octets(p[2])
      ELSE x509_name_from_text('CN=another') END, octets(p[2]),
    CASE p[3] WHEN '' THEN '' ELSE extension('551D11', octets(p[3])) END ||
    CASE p[4] WHEN '' THEN '' ELSE extension('551D1E', octets(p[4])) END) ORDER BY n) AS chain
  FROM (SELECT string_to_array(part, ':') AS p, n
    FROM string_to_table(c[2], '/') WITH ORDINALITY AS s (part, n)) parts) chains
WHERE x509_permitted(chain) IS TRUE <> (c[3] = 'yes')
  OR (x509_permitted_reason(chain) IS NULL) <> (c[3] = 'yes');
