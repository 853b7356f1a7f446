package ortholan

import (
	"encoding/hex"
	"encoding/json"
	"os"
	"strings"
	"testing"
)

const data = "../../tests/data/"

// row is a row of a file of tests/data/vectors/; CONTRIBUTING.md tells their form.
type row map[string]string

// rows hands each row of a file to a test; its cells are found by the names of their columns.
func rows(t *testing.T, file string, test func(*testing.T, row)) {
	text, err := os.ReadFile(data + "vectors/" + file)
	if err != nil {
		t.Fatal(err)
	}
	var columns []string
	ran := 0
	for _, line := range strings.Split(string(text), "\n") {
		if line == "" || line[0] == '#' {
			continue
		}
		cells := strings.Split(line, "\t")
		if columns == nil {
			columns = cells
			continue
		}
		found := row{}
		for i, cell := range cells {
			if strings.HasPrefix(cell, `"`) {
				if err := json.Unmarshal([]byte(cell), &cell); err != nil {
					t.Fatal(file, line, err)
				}
			}
			found[columns[i]] = cell
		}
		ran++
		t.Run(file, func(t *testing.T) {
			test(t, found)
			if t.Failed() {
				t.Log(line)
			}
		})
	}
	if ran == 0 {
		t.Fatal(file, "no rows")
	}
}

func (r row) octets(t *testing.T, column string) []byte {
	octets, err := hex.DecodeString(r[column])
	if err != nil {
		t.Fatal(err)
	}
	return octets
}

func digits(octets []byte) string { return strings.ToUpper(hex.EncodeToString(octets)) }

func same(t *testing.T, found, expected any) {
	t.Helper()
	if found != expected {
		t.Errorf("%v, expected %v", found, expected)
	}
}

func refusal(t *testing.T, err error) *Refusal {
	t.Helper()
	refusal, is := err.(*Refusal)
	if !is {
		t.Fatalf("%v is no refusal", err)
	}
	return refusal
}
