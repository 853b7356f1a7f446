-- Builds DER, for the tests behind this one.
CREATE FUNCTION octets(digits text) RETURNS bytea LANGUAGE sql AS
  $$ SELECT decode(replace(digits, '-', ''), 'hex') $$;
CREATE FUNCTION tlv(tag text, VARIADIC parts bytea[]) RETURNS bytea LANGUAGE plpgsql AS $$
DECLARE content bytea := string_agg(p, '') FROM unnest(parts) p;
  size int := length(content);
BEGIN
  RETURN octets(tag) || octets(CASE WHEN size < 128 THEN lpad(to_hex(size), 2, '0')
    WHEN size < 256 THEN '81' || to_hex(size) WHEN size < 65536 THEN '82' || lpad(to_hex(size), 4, '0')
    ELSE '83' || lpad(to_hex(size), 6, '0') END) || content;
END $$;
CREATE FUNCTION extension(oid text, value bytea) RETURNS bytea LANGUAGE sql AS
  $$ SELECT tlv('30', tlv('06', octets(oid)), tlv('04', value)) $$;
-- Certificate policies with a user notice.
CREATE FUNCTION notice(characters bytea) RETURNS bytea LANGUAGE sql AS $$
  SELECT extension('551D20', tlv('30', tlv('30', '\x0604551D2000', tlv('30', tlv('30',
    '\x06082B06010505070202', tlv('30', tlv('0C', characters)))))))
$$;
-- A certificate with these extensions.
CREATE FUNCTION certificate(issuer bytea, subject bytea, extensions bytea) RETURNS bytea LANGUAGE sql AS $$
  SELECT tlv('30', tlv('30', '\xA003020102020101', algorithm, issuer,
      tlv('30', tlv('17', '260101000000Z'), tlv('17', '270101000000Z')), subject,
      tlv('30', algorithm, '\x03020000'),
      CASE WHEN extensions = '' THEN '' ELSE tlv('A3', tlv('30', extensions)) END),
    algorithm, '\x03020000')
  FROM (SELECT '\x300506032B6570'::bytea) a (algorithm)
$$;
CREATE TABLE samples AS SELECT 0 AS n, '' AS label, ''::bytea AS der LIMIT 0;
\set pem `cd "$ORTHOLAN_CERTIFICATES" && cat alternative_names.pem cyrillic.pem multi_valued.pem typed.pem printable.pem list.pem request.pem`
INSERT INTO samples SELECT n, label, octets FROM x509_pem(:'pem') WITH ORDINALITY AS p (label, octets, n);
SELECT n, label FROM samples;
