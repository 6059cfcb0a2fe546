; Small pictures as text: width, height, a letter a pixel.

; Colours of the letters; a blank and a point are clear.
colour_of_letter:
        times 'A' - ($ - colour_of_letter) db 0
        db      kWood + 2               ; A   dark wood, hair
        db      kBlue + 15              ; B   pale blue
        db      kBlue + 11              ; C
        db      kBlue + 7               ; D
        db      kBlue + 4               ; E
        db      kRose + 4               ; F   dark rose
        db      kGold + 15              ; G   pale gold
        db      kGold + 12              ; H
        db      kGold + 8               ; I
        db      kGold + 4               ; J
        db      kEmber + 15             ; K   bright ember
        db      kEmber + 11             ; L
        db      kEmber + 7              ; M
        db      kEmber + 3              ; N
        db      kGold + 13              ; O   lit window
        db      kHill + 2               ; P   dark wall
        db      kHill + 6               ; Q   roof
        db      kRose + 8               ; R   rose
        db      kMoon + 10              ; S   skin
        db      kMoon + 5               ; T   skin in shadow
        db      kGrey + 12              ; U   grey cloth
        db      kGrey + 6               ; V
        db      kWhite                  ; W
        db      kRose + 13              ; X   pale rose
        db      kHill + 10              ; Y   lit edge
        db      kWood + 8               ; Z   wood

sprite_house:
        db      22, 22
        db      "...............QQ....."
        db      "...............QQ....."
        db      ".........QYY...QQ....."
        db      ".......QQQQQYY.QQ....."
        db      ".....QQQQQQQQQYQQ....."
        db      "...QQQQQQQQQQQQQYY...."
        db      ".QQQQQQQQQQQQQQQQQYY.."
        db      "QQQQQQQQQQQQQQQQQQQQYY"
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPOOOPPPPPPPPPPPP.."
        db      "..PPPOIOPPPPPOOIOOPP.."
        db      "..PPPIIIPPPPPOOIOOPP.."
        db      "..PPPOIOPPPPPIIIIIPP.."
        db      "..PPPOOOPPPPPOOIOOPP.."
        db      "..PPPPPPPPPPPOOIOOPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."
        db      "..PPPPPPPPPPPPPPPPPP.."

sprite_star:
        db      11, 11
        db      ".....G....."
        db      ".....G....."
        db      "....GHG...."
        db      "....HHH...."
        db      "GGGGHHHHGGG"
        db      ".IHHHHHHHI."
        db      "..IHHHHHI.."
        db      "...HHHHH..."
        db      "..IHHIHHI.."
        db      "..HI...IH.."
        db      ".J.......J."

sprite_star_bright:
        db      11, 11
        db      ".....W....."
        db      ".....W....."
        db      "....GWG...."
        db      "....GWG...."
        db      "WWGGWWWGGWW"
        db      ".HGGWWWGGH."
        db      "..HGGWGGH.."
        db      "...GGGGG..."
        db      "..HGGHGGH.."
        db      "..GH...HG.."
        db      ".I.......I."

sprite_comet:
        db      9, 9
        db      "....B...."
        db      "....B...."
        db      "...CBC..."
        db      "..CBWBC.."
        db      "BBBWWWBBB"
        db      "..CBWBC.."
        db      "...CBC..."
        db      "....B...."
        db      "....B...."

sprite_ember:
        db      9, 9
        db      "...MMM..."
        db      ".MMLLLMM."
        db      ".MLKKKLM."
        db      "MLKKWKKLM"
        db      "MLKWWWKLM"
        db      "MLKKWKKLM"
        db      ".MLKKKLM."
        db      ".NMLLLMN."
        db      "...NNN..."

sprite_heart:
        db      9, 8
        db      ".RR...RR."
        db      "RXXR.RXXR"
        db      "RXWXRXXXR"
        db      "RXXXXXXXR"
        db      ".RXXXXXR."
        db      "..RXXXR.."
        db      "...RXR..."
        db      "....R...."

; The children: the sister at the left end of the blanket, the brother at the right one.
sprite_sister:
        db      11, 18
        db      "....AAA...."
        db      "...AAAAA..."
        db      "..AAAAAAA.."
        db      "..AAASSSS.."
        db      "..AASSASS.."
        db      "..AASSSSS.."
        db      ".AA..SST..."
        db      ".AF.RRRR..."
        db      "....RXRRSSS"
        db      "....RRXSSS."
        db      "....RRRR..."
        db      "...RRRRRR.."
        db      "...XRXRXR.."
        db      "..RRRRRRRR."
        db      "..FRRRRRRF."
        db      "....S..S..."
        db      "....S..S..."
        db      "....AA.AA.."

sprite_sister_runs:
        db      11, 18
        db      "....AAA...."
        db      "...AAAAA..."
        db      "..AAAAAAA.."
        db      "..AAASSSS.."
        db      "..AASSASS.."
        db      ".AAASSSSS.."
        db      "AA...SST..."
        db      "F...RRRR..."
        db      "....RXRRSSS"
        db      "....RRXSSS."
        db      "....RRRR..."
        db      "...RRRRRR.."
        db      "..XRRXRRXR."
        db      ".RRRRRRRRR."
        db      ".FRRRRRRRRF"
        db      "...S....S.."
        db      ".ASS.....S."
        db      ".A.......AA"

sprite_brother:
        db      11, 18
        db      "....AAA...."
        db      "...AAAAA..."
        db      "..AAAAAAA.."
        db      "..SSSSAAA.."
        db      "..SSASSAA.."
        db      "..SSSSSA..."
        db      "...TSS....."
        db      "...CCCC...."
        db      "SSSCCBC...."
        db      ".SSSBCC...."
        db      "...CCCC...."
        db      "...CCCC...."
        db      "...DCCD...."
        db      "...UUUU...."
        db      "...UVVU...."
        db      "...U..U...."
        db      "...U..U...."
        db      "..AA.AA...."

sprite_brother_runs:
        db      11, 18
        db      "....AAA...."
        db      "...AAAAA..."
        db      "..AAAAAAA.."
        db      "..SSSSAAA.."
        db      "..SSASSAA.."
        db      "..SSSSSA..."
        db      "...TSS....."
        db      "...CCCC...."
        db      "SSSCCBC...."
        db      ".SSSBCC...."
        db      "...CCCC...."
        db      "...CCCC...."
        db      "...DCCD...."
        db      "...UUUUU..."
        db      "..UUVVUUU.."
        db      "..U.....U.."
        db      ".UU.....UUA"
        db      "AA........A"
