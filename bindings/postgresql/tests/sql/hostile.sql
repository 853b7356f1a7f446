-- Values that somebody made: nothing crashes, and what is cut short is never read.
SELECT pg_backend_pid() AS pid, pg_postmaster_start_time() AS started \gset
-- Every function, on a value and on its text.
CREATE FUNCTION read_all(der bytea) RETURNS boolean LANGUAGE sql AS $$
  SELECT num_nonnulls(x509_name_text(der, true), x509_name_text(der, true, true), x509_name_error(der),
    x509_name_key(der, true), x509_names_match(der, '\x3000', true), x509_names_match_reason('\x3000', der),
    x509_name_within('\x3000', der, true), x509_name_within_reason(der, der), x509_subject(der, true),
    x509_issuer(der, true), x509_serial_number(der, true), x509_not_before(der, true),
    x509_not_after(der, true), x509_certificate_error(der), x509_alt_names(der, true),
    x509_alt_names(der, true, true), x509_extensions(der, true),
    x509_identifies(der, 'example.org', malformed_ok => true), x509_identifies_reason(der, '::1', 'ip'),
    x509_permitted(ARRAY[der, der], true), x509_permitted_reason(ARRAY[der]),
    x509_name_from_text(encode(der, 'escape'), true), (SELECT count(*) FROM x509_pem(encode(der, 'base64'), true)),
    (SELECT count(reason) FROM x509_presented_names(der, 'a', malformed_ok => true)),
    (SELECT count(value) FROM x509_name_attributes(der, true)),
    (SELECT count(key) FROM x509_name_attributes(der, true, true))) > 0
$$;
CREATE VIEW octets AS SELECT der FROM samples UNION ALL SELECT x509_subject(der) FROM samples WHERE n IN (2, 3);
SELECT bool_and(read_all(substr(der, 1, n))) AS survived, count(x509_name_text(substr(der, 1, n), true))
  + count(x509_subject(substr(der, 1, n), true)) AS cut_short_but_read
FROM octets, generate_series(0, length(der) - 1) n;
SELECT bool_and(read_all(set_byte(der, n, get_byte(der, n) # mask))) AS survived
FROM octets, generate_series(0, length(der) - 1) n, unnest(ARRAY[1, 32, 128, 255]) mask;
-- Lengths up to what 64 bits count, everywhere.
SELECT bool_and(read_all(overlay(der PLACING '\x88FFFFFFFFFFFFFFFF' FROM n FOR 1))
  AND read_all(overlay(der PLACING '\x847FFFFFFF' FROM n FOR 1))) AS survived
FROM octets, generate_series(1, length(der)) n;
-- Nesting: SEQUENCEs alone, as the value of an attribute, as directory names.
CREATE FUNCTION nest(tag text, depth int, der bytea) RETURNS bytea LANGUAGE plpgsql AS $$
BEGIN
  FOR i IN 1 .. depth LOOP der := tlv(tag, der); END LOOP;
  RETURN der;
END $$;
SELECT bool_and(read_all(der)) AS survived FROM (VALUES (decode(repeat('3080', 100000), 'hex')),
  (nest('30', 8000, '')), (tlv('30', tlv('31', tlv('30', '\x0603550403', nest('30', 8000, ''))))),
  (certificate('\x3000', '\x3000', extension('551D11', tlv('30', nest('A4', 8000, '')))))) AS made (der);

-- Sizes: a name of 20 MB, 100,000 attributes, 200,000 alternative names.
SELECT length(x509_name_text(name)), length(x509_name_key(name)), x509_names_match(name, name) AS match
FROM x509_name_from_text('CN=' || repeat('a', 20000000)) AS name;
SELECT length(x509_name_text(name)), (SELECT count(*) FROM x509_name_attributes(name)) AS attributes
FROM tlv('30', decode(repeat('310A300806035504031301' || '41', 100000), 'hex')) AS name;
SELECT cardinality(x509_alt_names(der)), x509_identifies(der, 'c.b'), x509_extensions(der) IS NOT NULL AS has_extensions
FROM certificate('\x3000', '\x3000', extension('551D11', tlv('30', decode(repeat('820161' || '8203622E63', 100000), 'hex')))) AS der;

-- The same server and the same process as in front.
SELECT pg_backend_pid() = :pid AS same_process, pg_postmaster_start_time() = :'started' AS same_server;
