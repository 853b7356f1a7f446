// Name prints the DER of names' texts, and that as text again: name 'CN=Alpha,O=Org'.
package main

import (
	"fmt"
	"os"

	"ortholan"
)

func main() {
	for _, text := range os.Args[1:] {
		name, err := ortholan.ParseName(text)
		if err != nil {
			fmt.Fprintln(os.Stderr, err)
			os.Exit(1)
		}
		fmt.Printf("%X\n%s\n", name.DER(), name)
	}
}
