module ortholan

go 1.19
