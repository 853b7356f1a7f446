-- Names: text, attributes, refusals.
SELECT x509_name_text('\x3010310E300C06035504031305416C706861');
SELECT x509_name_from_text('O=Org\, Ltd+OU=Альфа,C=RU') AS der \gset
SELECT :'der'::bytea, x509_name_text(:'der');
SELECT * FROM x509_name_attributes(:'der');
-- No text: a number, a NUL character, a type without a name; UTF-16.
SELECT oid, key, value, octets FROM x509_name_attributes(
  '\x3035310A30080603550403020101310C300A06035504030C03410042310A30080603883701130141310D'
  '300B060355040A1E040041041F', lenient => true);

-- A malformed name is an error, NULL, or read where that is asked for.
SELECT x509_name_text('\x300E310C300A06035504031303414042');
SELECT x509_name_text('\x300E310C300A06035504031303414042', true) IS NULL AS is_null,
  x509_name_text('\x300E310C300A06035504031303414042', lenient => true) AS lenient,
  x509_name_error('\x300E310C300A06035504031303414042');
SELECT count(*) FROM x509_name_attributes('\x30', true);
SELECT count(*) FROM x509_name_attributes('\x30');
SELECT x509_name_from_text('CN=a, b');
SELECT x509_name_from_text('CN=a, b', true) IS NULL AS is_null;
SELECT x509_name_key('\x3000'), x509_name_key('\x30800000', true) IS NULL AS is_null;
SELECT x509_name_key('\x30800000');
SELECT x509_names_match('\x3000', '\x30800000');
SELECT x509_names_match('\x3000', '\x30800000', true) IS NULL AS is_null;
-- A code point of which nothing can be told makes no name malformed.
SELECT x509_names_match(a, b) IS NULL AS is_null, x509_names_match_reason(a, b)
FROM (SELECT x509_name_from_text(U&'CN=\+01F600'), x509_name_from_text('CN=a')) n (a, b);

-- Values that are stored compressed, and out of line.
CREATE TABLE toasted (name bytea);
INSERT INTO toasted SELECT x509_name_from_text('CN=' || repeat('a', 50000));
ALTER TABLE toasted ALTER name SET STORAGE EXTERNAL;
INSERT INTO toasted SELECT x509_name_from_text('CN=' || repeat('A', 50000));
SELECT length(x509_name_text(name)), pg_column_size(name) < 5000 AS is_compressed FROM toasted;
SELECT x509_names_match(a.name, b.name), x509_name_key(a.name) = x509_name_key(b.name) AS same_key
FROM toasted a, toasted b WHERE a.name < b.name;

-- Everything may run in workers and stand in indexes.
SELECT proname FROM pg_proc
WHERE proname LIKE 'x509%' AND NOT (proparallel = 's' AND provolatile = 'i' AND proisstrict);
