-- A million rows, a thousand of them malformed: parallel plans, indexes, cancelled queries.
CREATE TABLE million AS
SELECT i, CASE WHEN i % 1000 = 0 THEN substr(der, 1, 20) ELSE der END AS name
FROM generate_series(1, 1000000) i, LATERAL (
  SELECT overlay(base PLACING convert_to(lpad(i::text, 7, '0'), 'UTF8') FROM position('0000000' IN base))
  FROM (VALUES (0, x509_name_from_text('CN=host0000000.example.org,O=Org\, Ltd,C=DE')),
    (1, x509_name_from_text('CN=Иванов 0000000,O=ООО \"Ромашка\",L=Москва,C=RU')),
    (2, x509_name_from_text('UID=0000000+CN=Beta,DC=example,DC=org'))) b (n, base) WHERE n = i % 3) r (der);
ANALYZE million;
CREATE VIEW summary AS SELECT count(*), count(t) AS texts, sum(hashtextextended(t, 0)) AS text_hash,
  count(k) AS keys, sum(hashtextextended(encode(k, 'hex'), 0)) AS key_hash,
  count(*) FILTER (WHERE x509_name_within(x509_name_from_text('C=ru'), name, true)) AS within
FROM million, LATERAL (SELECT x509_name_text(name, true) AS t, x509_name_key(name, true) AS k) l;

EXPLAIN (COSTS OFF) SELECT count(x509_name_text(name, true)) FROM million;
EXPLAIN (COSTS OFF) SELECT i FROM million
WHERE x509_name_within(x509_name_from_text('DC=example,DC=org'), name, true);
CREATE FUNCTION workers(query text) RETURNS text LANGUAGE plpgsql AS $$
DECLARE line text;
BEGIN
  FOR line IN EXECUTE 'EXPLAIN (ANALYZE, TIMING OFF) ' || query LOOP
    IF line LIKE '%Workers Launched%' THEN RETURN trim(line); END IF;
  END LOOP;
END $$;
SELECT workers('SELECT * FROM summary');
CREATE TABLE parallel AS SELECT * FROM summary;
SET max_parallel_workers_per_gather = 0;
CREATE TABLE serial AS SELECT * FROM summary;
SELECT p.count, p.texts, p.keys, p.within, p = s AS is_same FROM parallel p, serial s;
RESET max_parallel_workers_per_gather;
-- With expressions compiled, where the server can.
SET jit_above_cost = 0; SET jit_inline_above_cost = 0; SET jit_optimize_above_cost = 0;
SELECT count(x509_name_text(name, true)) FROM million;
RESET ALL;
-- One malformed value ends a query that asks for no NULL, in whichever process.
SELECT count(x509_name_text(name)) FROM million;

CREATE INDEX million_key ON million (x509_name_key(name, true));
ANALYZE million;
EXPLAIN (COSTS OFF) SELECT i FROM million
WHERE x509_name_key(name, true) = x509_name_key(x509_name_from_text('cn=HOST0000333.EXAMPLE.ORG, o=org\2C ltd, c=de'));
SELECT i FROM million
WHERE x509_name_key(name, true) = x509_name_key(x509_name_from_text('cn=HOST0000333.EXAMPLE.ORG, o=org\2C ltd, c=de'));
EXPLAIN (COSTS OFF) SELECT count(*) FROM million
WHERE x509_key_within(x509_name_key(x509_name_from_text('UID=0000002+CN=beta,DC=example,DC=org')), x509_name_key(name, true));
SELECT count(*) FROM million
WHERE x509_key_within(x509_name_key(x509_name_from_text('UID=0000002+CN=beta,DC=example,DC=org')), x509_name_key(name, true));
SELECT count(*) FROM million
WHERE x509_key_within(x509_name_key(x509_name_from_text('O=ооо \"РОМАШКА\",L=москва,C=ru')), x509_name_key(name, true));
SELECT count(*) FROM million
WHERE x509_name_within(x509_name_from_text('O=ооо \"РОМАШКА\",L=москва,C=ru'), name, true);

-- Cancelled, in workers as well: by a time limit, and by another session once it sees the query run.
SET statement_timeout = '300ms';
SELECT count(x509_name_text(a.name, true)) FROM million a, generate_series(1, 1000000) b;
RESET statement_timeout;
SELECT pg_backend_pid() AS pid \gset
\setenv BACKEND :pid
\! for i in $(seq 600); do sleep 0.1; test "$(psql -X -A -t -d contrib_regression -c "SELECT pg_cancel_backend(pid) FROM pg_stat_activity WHERE pid = $BACKEND AND state = 'active' AND query LIKE '%endless%'")" = t && break; done >/dev/null 2>&1 &
SELECT count(x509_name_key(a.name, true)) AS endless FROM million a, generate_series(1, 1000000) b;
SELECT count(x509_name_text(name, true)) FROM (SELECT name FROM million LIMIT 1000) few;
DROP TABLE million CASCADE;
