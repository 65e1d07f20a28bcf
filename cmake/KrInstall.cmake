# follows
