-- Keys in indexes: equality, subtrees, joins, partitions.
CREATE TABLE subjects AS
SELECT i, x509_name_from_text(format('CN=host%s,O=Org %s,C=RU', i, i % 100)) AS subject
FROM generate_series(1, 20000) i;
CREATE INDEX subjects_key ON subjects (x509_name_key(subject));
ANALYZE subjects;
PREPARE equal(text) AS SELECT i FROM subjects
WHERE x509_name_key(subject) = x509_name_key(x509_name_from_text($1));
PREPARE within(text) AS SELECT count(*) FROM subjects
WHERE x509_key_within(x509_name_key(x509_name_from_text($1)), x509_name_key(subject));
PREPARE range(text) AS SELECT count(*) FROM subjects
WHERE x509_name_key(subject) BETWEEN x509_name_key(x509_name_from_text($1))
  AND x509_name_key(x509_name_from_text($1)) || '\xff';

EXPLAIN (COSTS OFF) EXECUTE equal('cn=HOST1234,o=org  34,c=ru');
EXECUTE equal('cn=HOST1234,o=org  34,c=ru');
EXPLAIN (COSTS OFF) EXECUTE within('o=ORG 34,c=ru');
EXECUTE within('o=ORG 34,c=ru');
EXPLAIN (COSTS OFF) EXECUTE range('o=ORG 34,c=ru');
EXECUTE range('o=ORG 34,c=ru');
SELECT count(*) FROM subjects WHERE x509_name_within(x509_name_from_text('o=ORG 34,c=ru'), subject);
-- A plan for any value, and one where the subtree comes from a row.
SET plan_cache_mode = force_generic_plan;
EXPLAIN (COSTS OFF) EXECUTE within('C=RU');
EXECUTE within('C=RU');
EXECUTE within('O=Org 3,C=RU');
RESET plan_cache_mode;
CREATE TABLE subtrees AS SELECT x509_name_from_text(format('O=Org %s,C=RU', i)) AS base
FROM generate_series(98, 101) i;
EXPLAIN (COSTS OFF) SELECT count(*) FROM subtrees
JOIN subjects ON x509_key_within(x509_name_key(base), x509_name_key(subject));
SELECT x509_name_text(base), count(*) FROM subtrees
JOIN subjects ON x509_key_within(x509_name_key(base), x509_name_key(subject)) GROUP BY 1 ORDER BY 1;
-- Without the index the same.
SET enable_indexscan = off;
SET enable_bitmapscan = off;
EXECUTE within('O=Org 3,C=RU');
RESET ALL;
-- As many rows as there are are foreseen.
CREATE FUNCTION foreseen(query text) RETURNS bigint LANGUAGE plpgsql AS $$
DECLARE plan json;
BEGIN
  EXECUTE 'EXPLAIN (FORMAT JSON) ' || query INTO plan;
  RETURN plan #>> '{0,Plan,Plan Rows}';
END $$;
SELECT foreseen($$SELECT * FROM subjects WHERE x509_key_within(
  x509_name_key(x509_name_from_text('C=RU')), x509_name_key(subject))$$) > 15000 AS many,
  foreseen($$SELECT * FROM subjects WHERE x509_key_within(
  x509_name_key(x509_name_from_text('O=Org 7,C=RU')), x509_name_key(subject))$$) < 2000 AS few;

-- A key above the limit of btree pages has its place in a hash index.
CREATE TABLE long_names AS SELECT x509_name_from_text('CN=' || string_agg(md5(i::text), '')) AS name
FROM generate_series(1, 200) i;
CREATE INDEX ON long_names USING btree (x509_name_key(name));
CREATE INDEX ON long_names USING hash (x509_name_key(name));
-- Malformed names are no obstacle where NULL stands for them.
INSERT INTO subjects VALUES (0, '\x30');
CREATE INDEX subjects_readable ON subjects (x509_name_key(subject, true));
INSERT INTO subjects VALUES (0, '\x30');
DROP INDEX subjects_key;
INSERT INTO subjects VALUES (0, '\x30');
SELECT i FROM subjects WHERE x509_name_key(subject, true) IS NULL;

CREATE TABLE parts (subject bytea) PARTITION BY HASH (x509_name_key(subject));
CREATE TABLE part0 PARTITION OF parts FOR VALUES WITH (MODULUS 2, REMAINDER 0);
CREATE TABLE part1 PARTITION OF parts FOR VALUES WITH (MODULUS 2, REMAINDER 1);
INSERT INTO parts SELECT subject FROM subjects WHERE i > 0;
SELECT count(DISTINCT tableoid) FROM parts;
EXPLAIN (COSTS OFF) SELECT * FROM parts
WHERE x509_name_key(subject) = x509_name_key(x509_name_from_text('CN=host1,O=Org 1,C=RU'));
