-- Certificates, requests, CRLs: parts, alternative names, extensions, verdicts.
SELECT n, x509_name_text(x509_subject(der)) AS subject, x509_name_text(x509_issuer(der)) AS issuer,
  x509_serial_number(der), x509_not_after(der) > x509_not_before(der) AS is_ordered
FROM samples ORDER BY n;
SELECT n, x509_alt_names(der) FROM samples WHERE n IN (1, 2, 6, 7) ORDER BY n;
SELECT n, e ->> 'oid' AS oid, e -> 'critical' AS critical, e -> 'value' AS value
FROM samples, jsonb_array_elements(x509_extensions(der)) e WHERE n IN (1, 5) ORDER BY n, 2;
SELECT n FROM samples WHERE n <> 4 AND x509_extensions(der) @> '[{"oid": "2.5.29.19", "critical": true}]';
CREATE TABLE certificates AS SELECT n, der FROM samples, generate_series(1, 1000);
CREATE INDEX ON certificates USING gin (x509_alt_names(der));
ANALYZE certificates;
EXPLAIN (COSTS OFF) SELECT n FROM certificates WHERE x509_alt_names(der) @> '{DNS:example.org}';
SELECT n, count(*) FROM certificates WHERE x509_alt_names(der) @> '{DNS:example.org}' GROUP BY n;

SELECT reference, kind, x509_identifies(der, reference, kind), x509_identifies_reason(der, reference, kind)
FROM samples, (VALUES ('Example.ORG', 'host'), ('www.example.org', 'host'), ('192.0.2.1', 'ip'),
  ('user@example.org', 'email'), ('http://example.org', 'uri'), ('_ldap.example.org', 'srv'))
  AS asked (reference, kind) WHERE n = 1;
SELECT p.* FROM samples, x509_presented_names(der, '192.0.2.1', 'ip') p WHERE n = 1;
SELECT x509_identifies_reason(der, '192.0.2.1') FROM samples WHERE n = 1;
SELECT x509_identifies(der, 'example.org') FROM samples WHERE n IN (2, 6) ORDER BY n;
SELECT x509_identifies(der, 'example..org') FROM samples WHERE n = 1;
SELECT x509_identifies(der, 'example.org', 'domain') FROM samples WHERE n = 1;
SELECT x509_identifies(der, 'example.org', malformed_ok => true) IS NULL AS is_null,
  x509_identifies_reason(der, 'example.org') FROM samples WHERE n = 6;
SELECT x509_permitted(ARRAY[der]) FROM samples WHERE n IN (1, 6) ORDER BY n;
SELECT x509_permitted(ARRAY[der], true) IS NULL AS is_null, x509_permitted_reason(ARRAY[der])
FROM samples WHERE n = 6;
SELECT x509_permitted('{}');
SELECT x509_permitted('{NULL}');

-- What is malformed inside: a time, a list of names, names with a NUL and beyond ASCII, a duplicate.
CREATE TABLE malformed AS SELECT what, certificate('\x3000', '\x3000', extensions) AS der
FROM (VALUES ('list', extension('551D11', '\x3082')), ('NUL', extension('551D11', '\x30058203410042')),
  ('beyond ASCII', extension('551D11', tlv('30', tlv('82', 'é'), tlv('82', '*.A.b'), tlv('81', 'c')))),
  ('duplicate', extension('551D11', '\x3000') || extension('551D11', '\x3000')),
  ('type', extension('', '\x3000')),
  ('NUL in a text', notice('\x410042'))) AS made (what, extensions);
INSERT INTO malformed SELECT 'time', overlay(der PLACING '2' FROM position('260101' IN der) + 2)
FROM (SELECT certificate('\x3000', '\x3000', '') AS der) d;
SELECT what, x509_certificate_error(der), x509_dns_names(der, true) AS hosts, x509_alt_names(der, true) AS names,
  x509_alt_names(der, true, true) AS lenient, x509_not_before(der, true) AS begin,
  x509_identifies(der, 'a', malformed_ok => true) AS is_a,
  x509_identifies_reason(der, 'a') AS reason, x509_extensions(der, true) AS extensions
FROM malformed \gx
SELECT x509_not_before(der) FROM malformed WHERE what = 'time';
SELECT x509_alt_names(der) FROM malformed WHERE what = 'list';
SELECT x509_subject('\x3000');
SELECT x509_subject('\x3000', true) IS NULL AS is_null;
SELECT x509_not_before(certificate('\x3000', '\x3000', '')) AT TIME ZONE 'UTC';

SELECT * FROM x509_pem('text' || chr(10) || '-----BEGIN A-----' || chr(10) || 'AAEC' || chr(10) || '-----END A-----');
SELECT * FROM x509_pem('-----BEGIN A-----' || chr(10) || 'AAE' || chr(10) || '-----END A-----');
SELECT * FROM x509_pem('-----BEGIN A-----' || chr(10) || 'AAE' || chr(10) || '-----END A-----', true);
